#include "platform/qt/GzipStream.h"

#include "platform/qt/Gzip.h"

#include <QRandomGenerator>
#include <gtest/gtest.h>

namespace brellowind::platform {
namespace {

using test::gzip;
using Result = GzipStream::Result;

constexpr std::size_t limit = 1 << 20;

/// What a file becomes that comes in pieces of so many bytes; nothing when it is refused.
std::optional<QByteArray> unpacked(const QByteArray& file, qsizetype pieceSize) {
    GzipStream stream;
    std::string body;
    for (qsizetype i = 0; i < file.size(); i += pieceSize)
        if (stream.unpack(file.mid(i, pieceSize).toStdString(), body, limit) != Result::unpacked)
            return std::nullopt;
    if (!stream.isWhole())
        return std::nullopt;
    return QByteArray::fromStdString(body);
}

QByteArray noise(qsizetype size) {
    QByteArray bytes(size, '\0');
    for (char& byte : bytes)
        byte = static_cast<char>(QRandomGenerator::global()->bounded(256));
    return bytes;
}

class GzipStreamInPieces : public testing::TestWithParam<qsizetype> {
protected:
    const qsizetype size = GetParam();
};

INSTANTIATE_TEST_SUITE_P(OfSize, GzipStreamInPieces, testing::Values(1, 2, 7, 1000, 100'000));

TEST_P(GzipStreamInPieces, GivesWhatWasPacked) {
    for (const auto& body :
         {QByteArray(), QByteArray("a"), QByteArray(limit, 'a'), noise(16384), noise(40'000)})
        EXPECT_TRUE(unpacked(gzip(body), size) == body) << body.size();
}

TEST_P(GzipStreamInPieces, JoinsTheMembersOfAFile) {
    EXPECT_EQ(unpacked(gzip("one") + gzip("") + gzip(", two"), size), "one, two");
}

TEST_P(GzipStreamInPieces, RefusesAFileThatEndsTooEarlyWhereverThatIs) {
    const QByteArray file = gzip("one") + gzip("two");
    const qsizetype border = gzip("one").size();
    for (qsizetype length = 1; length < file.size(); ++length)
        EXPECT_EQ(unpacked(file.left(length), size).has_value(), length == border) << length;
}

TEST_P(GzipStreamInPieces, RefusesWhatFollowsAFileAndIsNone) {
    EXPECT_EQ(unpacked(gzip("one") + QByteArray(1, '\0'), size), std::nullopt);
    EXPECT_EQ(unpacked(gzip("one") + "{}", size), std::nullopt);
}

TEST_P(GzipStreamInPieces, RefusesWhatIsNoFile) {
    EXPECT_EQ(unpacked("{}", size), std::nullopt);
    EXPECT_EQ(unpacked(qCompress("zlib's own format").mid(4), size), std::nullopt);
    QByteArray wrongSum = gzip("one");
    wrongSum[wrongSum.size() - 8] ^= 1;
    EXPECT_EQ(unpacked(wrongSum, size), std::nullopt);
    QByteArray wrongLength = gzip("one");
    wrongLength[wrongLength.size() - 1] ^= 1;
    EXPECT_EQ(unpacked(wrongLength, size), std::nullopt);
}

TEST(GzipStream, IsWholeBeforeItsFirstByte) {
    EXPECT_TRUE(GzipStream().isWhole());
    EXPECT_EQ(unpacked({}, 1), "");
}

TEST(GzipStream, UnpacksUpToItsLimitAndNotAByteMore) {
    for (const std::size_t size : {std::size_t{1}, std::size_t{16384}, limit}) {
        const std::string file = gzip(QByteArray(static_cast<qsizetype>(size), 'a')).toStdString();
        std::string body;
        EXPECT_EQ(GzipStream().unpack(file, body, size), Result::unpacked);
        EXPECT_EQ(body.size(), size);
        body.clear();
        EXPECT_EQ(GzipStream().unpack(file, body, size - 1), Result::tooLong);
        EXPECT_LT(body.size(), size);
    }
}

} // namespace
} // namespace brellowind::platform
