// SPDX-License-Identifier: MIT

#include "session/ProcessUse.h"

#include <QDir>
#include <QFile>
#include <gtest/gtest.h>
#include <unistd.h>

namespace brellowind::test {

qint64 ProcessUse::descriptors() const {
    const QDir folder(folder_ + QStringLiteral("fd"));
    EXPECT_TRUE(folder.exists());
    return folder.entryList(QDir::NoDotAndDotDot | QDir::AllEntries | QDir::System).size();
}

void ProcessUse::forgetPeakMemory() const {
    QFile references(folder_ + QStringLiteral("clear_refs"));
    EXPECT_TRUE(references.open(QIODevice::WriteOnly));
    EXPECT_EQ(references.write("5"), 1);
}

std::chrono::milliseconds ProcessUse::processorTime() const {
    const QByteArray stat = contents("stat");
    const auto fields = stat.mid(stat.lastIndexOf(')') + 2).split(' '); // the name may have spaces
    const qint64 ticks = fields.value(11).toLongLong() + fields.value(12).toLongLong();
    return std::chrono::milliseconds(ticks * 1000 / sysconf(_SC_CLK_TCK));
}

qint64 ProcessUse::status(const char* field) const {
    const QByteArray text = contents("status");
    const qsizetype begin = text.indexOf(field);
    EXPECT_GE(begin, 0) << field;
    return text.mid(begin + qstrlen(field)).simplified().split(' ').value(0).toLongLong();
}

QByteArray ProcessUse::contents(const char* file) const {
    QFile opened(folder_ + QLatin1String(file));
    EXPECT_TRUE(opened.open(QIODevice::ReadOnly)) << qPrintable(opened.fileName());
    return opened.readAll();
}

} // namespace brellowind::test
