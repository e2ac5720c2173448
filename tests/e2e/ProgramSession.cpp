// SPDX-License-Identifier: MIT

#include "e2e/ProgramSession.h"

#include <QTemporaryFile>
#include <gtest/gtest.h>

namespace brellowind::test {

ProgramSession ProgramSession::on(const Desktop& desktop, const QProcessEnvironment& more,
                                  const QStringList& launcher) {
    const auto errorFile = std::make_shared<QTemporaryFile>();
    EXPECT_TRUE(errorFile->open());
    auto environment = desktop.environment();
    environment.insert(more);
    const auto start = [errorFile, environment, launcher](const QString& program,
                                                          const QStringList& arguments) {
        const QStringList command = launcher + QStringList{program} + arguments;
        return std::make_unique<demo::Companion>(command.constFirst(), command.mid(1), environment,
                                                 errorFile->fileName());
    };
    return {desktop.bus.connection(), start, errorFile->fileName()};
}

} // namespace brellowind::test
