// SPDX-License-Identifier: MIT

#pragma once

#include "platform/LinkOpener.h"

#include <QProcessEnvironment>

namespace brellowind::platform {

/// Opens links with `xdg-open`.
class XdgLinkOpener final : public LinkOpener {
public:
    /// `environment` is that of the started programs.
    explicit XdgLinkOpener(QProcessEnvironment environment);

    bool open(std::string_view url) override;

private:
    QProcessEnvironment environment_;
};

} // namespace brellowind::platform
