#pragma once

#include <QByteArray>
#include <QSize>

/// Images that move, made of one that does not.
namespace brellowind::test::hostile {

/// A WebP file of `frames` frames, each of which shows `still`, a WebP file of `size`, at the top
/// left of a canvas.
QByteArray animatedWebp(const QByteArray& still, QSize size, int frames, QSize canvas);

/// A PNG file that is `still` to whoever knows no animations, and `frames` more frames of the same.
QByteArray animatedPng(const QByteArray& still, QSize size, int frames);

} // namespace brellowind::test::hostile
