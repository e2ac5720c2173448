// SPDX-License-Identifier: MIT

#pragma once

#include <QByteArray>
#include <QSize>

/// Animated images, made of a still image.
namespace brellowind::test::hostile {

/// An animated WebP file of `frames` frames, each with `still`, a WebP file of `size`, at the top
/// left of the canvas.
QByteArray animatedWebp(const QByteArray& still, QSize size, int frames, QSize canvas);

/// An animated PNG file with `still` as its default image and `frames` copies of it as frames.
QByteArray animatedPng(const QByteArray& still, QSize size, int frames);

} // namespace brellowind::test::hostile
