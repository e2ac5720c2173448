#pragma once

#include <QString>
#include <chrono>

namespace brellowind::test {

/// Whether this build's own checks take time and memory of their own.
#if defined(__SANITIZE_ADDRESS__) || defined(__SANITIZE_THREAD__)
inline constexpr bool isInstrumented = true;
#else
inline constexpr bool isInstrumented = false;
#endif

/// By so much memory may grow without a leak. A sanitizer holds back the last quarter of a gigabyte
/// that was freed; it looks for leaks itself.
inline constexpr qint64 growthWithoutLeakKiB = isInstrumented ? 512 * 1024 : 4096;

/// What a process takes of the machine, as the kernel counts it. Fails the running test when there
/// is no such process.
class ProcessUse {
public:
    /// This process.
    ProcessUse() : folder_(QStringLiteral("/proc/self/")) {}
    explicit ProcessUse(qint64 processId) : folder_(QStringLiteral("/proc/%1/").arg(processId)) {}

    /// Open files and sockets.
    qint64 descriptors() const;

    /// In use now, and the most that has been in use since it was last forgotten.
    qint64 memoryKiB() const { return status("VmRSS:"); }
    qint64 peakMemoryKiB() const { return status("VmHWM:"); }
    void forgetPeakMemory() const;

    /// Of all its threads, in the program and in the kernel.
    std::chrono::milliseconds processorTime() const;

private:
    qint64 status(const char* field) const;
    QByteArray contents(const char* file) const;

    QString folder_;
};

} // namespace brellowind::test
