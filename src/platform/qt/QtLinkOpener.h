// SPDX-License-Identifier: MIT

#pragma once

#include "platform/LinkOpener.h"

#include <QProcessEnvironment>

namespace brellowind::platform {

/// Opens links with `xdg-open`.
class QtLinkOpener final : public LinkOpener {
public:
    /// `environment` is that of the started programs.
    explicit QtLinkOpener(QProcessEnvironment environment);

    bool open(std::string_view url) override;

private:
    QProcessEnvironment environment_;
};

} // namespace brellowind::platform
