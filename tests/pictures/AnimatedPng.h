// SPDX-License-Identifier: MIT

#pragma once

#include <QByteArray>
#include <QImage>
#include <QRect>
#include <QString>
#include <vector>

namespace brellowind::test {

/// Writes animated PNG files. Each frame stores only the difference from the previous one.
class AnimatedPng {
public:
    explicit AnimatedPng(int framesPerSecond) : framesPerSecond_(framesPerSecond) {}

    /// All frames have the size of the first one. A frame like the one before prolongs that.
    void append(const QImage& frame);

    /// False when there is no frame or the file cannot be written.
    bool save(const QString& file) const;

private:
    struct Frame {
        QRect changed;
        QByteArray data; ///< compressed pixels of that part
        int duration = 1;
    };

    QByteArray controlChunk(const Frame& frame, quint32 number) const;

    int framesPerSecond_;
    QImage last_;
    std::vector<Frame> frames_;
};

} // namespace brellowind::test
