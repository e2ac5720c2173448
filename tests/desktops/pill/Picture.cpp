// SPDX-License-Identifier: MIT

#include "desktops/pill/Picture.h"

#include <QDir>
#include <algorithm>
#include <cstdlib>

namespace brellowind::test {
namespace {

/// Compositors round when they scale or blend.
constexpr int rounding = 3;

bool differ(const QColor& a, const QColor& b) {
    return std::max({std::abs(a.red() - b.red()), std::abs(a.green() - b.green()),
                     std::abs(a.blue() - b.blue())}) > rounding;
}

} // namespace

QRect Picture::differing(const QColor& background, QRect within) const {
    QRect found;
    within &= image_.rect();
    for (int y = within.top(); y <= within.bottom(); ++y)
        for (int x = within.left(); x <= within.right(); ++x)
            if (differ(image_.pixelColor(x, y), background))
                found |= QRect(x, y, 1, 1);
    return found;
}

std::optional<int> Picture::offCentre(int row, const QColor& background) const {
    const QRect found = differing(background, {0, row, image_.width(), 1});
    if (found.isEmpty())
        return std::nullopt;
    return image_.width() - 1 - found.right() - found.left();
}

int Picture::sharpestStep(QRect within) const {
    int sharpest = 0;
    within &= image_.rect();
    for (int y = within.top(); y <= within.bottom(); ++y)
        for (int x = within.left(); x < within.right(); ++x)
            sharpest = std::max(
                sharpest, std::abs(qGray(image_.pixel(x + 1, y)) - qGray(image_.pixel(x, y))));
    return sharpest;
}

double Picture::repeatedColumns(QRect within) const {
    within &= image_.rect();
    const auto column = [&](int x) { return image_.copy(x, within.top(), 1, within.height()); };
    int columns = 0;
    int repeated = 0;
    for (int x = within.left() + 1; x <= within.right(); ++x) {
        const QImage here = column(x);
        if (here == here.copy(0, 0, 1, 1).scaled(here.size()))
            continue;
        ++columns;
        repeated += here == column(x - 1) ? 1 : 0;
    }
    return columns > 0 ? double(repeated) / columns : 1;
}

QString Picture::keep(const QString& name) const {
    const QDir folder(QStringLiteral(BRELLOWIND_DESKTOP_PICTURES));
    folder.mkpath(QStringLiteral("."));
    const QString file = folder.filePath(name + QStringLiteral(".png"));
    image_.save(file);
    return file;
}

} // namespace brellowind::test
