// SPDX-License-Identifier: MIT

#include "faults/AnimatedImages.h"

#include <QtEndian>

namespace brellowind::test::hostile {
namespace {

/// The lowest `bytes` bytes, little-endian.
QByteArray little(int value, qsizetype bytes) {
    const auto ordered = qToLittleEndian(static_cast<quint32>(value));
    return {reinterpret_cast<const char*>(&ordered), bytes};
}

QByteArray big(quint32 value) {
    const auto ordered = qToBigEndian(value);
    return {reinterpret_cast<const char*>(&ordered), sizeof ordered};
}

QByteArray riffChunk(const char* name, const QByteArray& data) {
    const QByteArray padding(data.size() % 2, '\0');
    return name + little(static_cast<int>(data.size()), 4) + data + padding;
}

/// The CRC of PNG chunks.
quint32 crc32(const QByteArray& bytes) {
    constexpr quint32 polynomial = 0xEDB88320;
    quint32 sum = ~0U;
    for (const char byte : bytes) {
        sum ^= static_cast<unsigned char>(byte);
        for (int bit = 0; bit < 8; ++bit)
            sum = sum >> 1U ^ ((sum & 1U) != 0 ? polynomial : 0);
    }
    return ~sum;
}

QByteArray pngChunk(const QByteArray& name, const QByteArray& data) {
    const QByteArray checked = name + data;
    return big(static_cast<quint32>(data.size())) + checked + big(crc32(checked));
}

} // namespace

QByteArray animatedWebp(const QByteArray& still, QSize size, int frames, QSize canvas) {
    constexpr qsizetype fileHead = 12;
    const auto extent = [](QSize of) {
        return little(of.width() - 1, 3) + little(of.height() - 1, 3);
    };
    const QByteArray place = little(0, 3) + little(0, 3);
    const QByteArray frame = riffChunk("ANMF", place + extent(size) + little(100, 3) +
                                                   little(0, 1) + still.mid(fileHead));
    const QByteArray body = "WEBP" + riffChunk("VP8X", little(1 << 1, 4) + extent(canvas)) +
                            riffChunk("ANIM", little(0, 4) + little(0, 2)) + frame.repeated(frames);
    return riffChunk("RIFF", body);
}

QByteArray animatedPng(const QByteArray& still, QSize size, int frames) {
    const QByteArray extent =
        big(static_cast<quint32>(size.width())) + big(static_cast<quint32>(size.height()));
    quint32 sequence = 0;
    const auto control = [&] {
        return pngChunk("fcTL", big(sequence++) + extent + big(0) + big(0) +
                                    QByteArray("\0\1\0\12\0\0", 6));
    };
    const qsizetype image = still.indexOf("IDAT") - 4; // the length precedes the name
    const qsizetype end = still.lastIndexOf("IEND") - 4;
    const auto length = qFromBigEndian<quint32>(still.constData() + image);
    const QByteArray data = still.mid(image + 8, length);
    QByteArray file = still.left(image) +
                      pngChunk("acTL", big(static_cast<quint32>(frames) + 1) + big(0)) + control() +
                      still.mid(image, end - image);
    for (int i = 0; i < frames; ++i) {
        file += control();
        file += pngChunk("fdAT", big(sequence++) + data);
    }
    return file + still.mid(end);
}

} // namespace brellowind::test::hostile
