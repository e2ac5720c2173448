#pragma once

#include "platform/LinkOpener.h"

#include <QProcessEnvironment>

namespace brellowind::platform {

/// Opens links with `xdg-open`, the freedesktop.org command for it.
class QtLinkOpener final : public LinkOpener {
public:
    /// `environment` is what the programs that open links get.
    explicit QtLinkOpener(QProcessEnvironment environment);

    bool open(std::string_view url) override;

private:
    QProcessEnvironment environment_;
};

} // namespace brellowind::platform
