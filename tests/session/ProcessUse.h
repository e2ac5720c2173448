// SPDX-License-Identifier: MIT

#pragma once

#include <QString>
#include <chrono>

namespace brellowind::test {

/// Whether this is a sanitizer build.
#if defined(__SANITIZE_ADDRESS__) || defined(__SANITIZE_THREAD__)
inline constexpr bool isInstrumented = true;
#else
inline constexpr bool isInstrumented = false;
#endif

/// The allowed growth of memory. Sanitizers quarantine up to 256 MB of freed memory; they detect
/// leaks themselves.
inline constexpr qint64 growthWithoutLeakKiB = isInstrumented ? 512 * 1024 : 4096;

/// The resource usage of a process, from the kernel. Fails the test if there is no such process.
class ProcessUse {
public:
    /// This process.
    ProcessUse() : folder_(QStringLiteral("/proc/self/")) {}
    explicit ProcessUse(qint64 processId) : folder_(QStringLiteral("/proc/%1/").arg(processId)) {}

    /// Open files and sockets.
    qint64 descriptors() const;

    /// Current memory, and its peak since the last reset.
    qint64 memoryKiB() const { return status("VmRSS:"); }
    qint64 peakMemoryKiB() const { return status("VmHWM:"); }
    void forgetPeakMemory() const;

    /// CPU time of all its threads, user and system.
    std::chrono::milliseconds processorTime() const;

private:
    qint64 status(const char* field) const;
    QByteArray contents(const char* file) const;

    QString folder_;
};

} // namespace brellowind::test
