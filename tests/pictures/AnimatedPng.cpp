// SPDX-License-Identifier: MIT

#include "pictures/AnimatedPng.h"

#include <QBuffer>
#include <QFile>
#include <QtEndian>

namespace brellowind::test {
namespace {

constexpr int signatureLength = 8;
constexpr int chunkOverhead = 12; ///< length, kind and checksum

template <typename Number>
QByteArray bigEndian(Number number) {
    QByteArray bytes(sizeof number, Qt::Uninitialized);
    qToBigEndian(number, bytes.data());
    return bytes;
}

quint32 checksum(const QByteArray& bytes) {
    quint32 sum = 0xffffffff;
    for (const char byte : bytes) {
        sum ^= static_cast<uchar>(byte);
        for (int bit = 0; bit < 8; ++bit)
            sum = sum & 1 ? 0xedb88320 ^ (sum >> 1) : sum >> 1;
    }
    return ~sum;
}

QByteArray chunk(const char* kind, const QByteArray& data) {
    const QByteArray summed = kind + data;
    return bigEndian(static_cast<quint32>(data.size())) + summed + bigEndian(checksum(summed));
}

/// The joined data of all chunks of a kind in a PNG.
QByteArray dataOf(const QByteArray& png, const char* kind) {
    QByteArray data;
    for (qsizetype at = signatureLength; at + chunkOverhead <= png.size();) {
        const auto length = qFromBigEndian<quint32>(png.constData() + at);
        if (png.mid(at + 4, 4) == kind)
            data += png.mid(at + 8, length);
        at += length + chunkOverhead;
    }
    return data;
}

QByteArray png(const QImage& image) {
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    image.convertToFormat(QImage::Format_RGB888).save(&buffer, "PNG", 0); // the smallest
    return bytes;
}

/// The bounding rectangle of the differences.
QRect changedPart(const QImage& before, const QImage& now) {
    QRect part;
    for (int y = 0; y < now.height(); ++y) {
        for (int x = 0; x < now.width(); ++x)
            if (before.pixel(x, y) != now.pixel(x, y))
                part |= QRect(x, y, 1, 1);
    }
    return part;
}

} // namespace

void AnimatedPng::append(const QImage& frame) {
    const QRect changed = last_.isNull() ? frame.rect() : changedPart(last_, frame);
    if (changed.isEmpty()) {
        ++frames_.back().duration;
        return;
    }
    last_ = frame;
    frames_.push_back({changed, dataOf(png(frame.copy(changed)), "IDAT")});
}

QByteArray AnimatedPng::controlChunk(const Frame& frame, quint32 number) const {
    const auto& [changed, data, duration] = frame;
    QByteArray control = bigEndian(number);
    for (const int value : {changed.width(), changed.height(), changed.x(), changed.y()})
        control += bigEndian(static_cast<quint32>(value));
    control += bigEndian(static_cast<quint16>(duration));
    control += bigEndian(static_cast<quint16>(framesPerSecond_));
    control += QByteArray(2, '\0'); // dispose: none, blend: source
    return chunk("fcTL", control);
}

bool AnimatedPng::save(const QString& file) const {
    if (frames_.empty())
        return false;
    const QByteArray header = png(last_).left(signatureLength + 13 + chunkOverhead);
    const QByteArray forEver = bigEndian(quint32(0));
    QByteArray bytes =
        header + chunk("acTL", bigEndian(static_cast<quint32>(frames_.size())) + forEver);
    quint32 number = 0;
    for (const auto& frame : frames_) {
        bytes += controlChunk(frame, number++);
        if (&frame == &frames_.front())
            bytes += chunk("IDAT", frame.data);
        else
            bytes += chunk("fdAT", bigEndian(number++) + frame.data);
    }
    bytes += chunk("IEND", {});
    QFile out(file);
    return out.open(QIODevice::WriteOnly) && out.write(bytes) == bytes.size();
}

} // namespace brellowind::test
