#include "GoldenPicture.h"

#include "Golden.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <QApplication>
#include <QCryptographicHash>
#include <QFontInfo>
#include <QPainter>
#include <QString>

namespace qev::test {

namespace {

constexpr auto lettersKey = "Letters";

QString toPath(std::filesystem::path const& path) { return QString::fromStdString(path.string()); }

/// Says how this machine draws letters.
QString getLetters()
{
    QImage sample(240, 40, QImage::Format_RGB32);
    sample.fill(Qt::white);
    QPainter painter(&sample);
    painter.setFont(QApplication::font());
    painter.drawText(sample.rect(), Qt::AlignCenter, QStringLiteral("Pset_WallCommon 0.24 m²"));
    painter.end();
    auto const drawn = QByteArray::fromRawData(reinterpret_cast<char const*>(sample.constBits()),
                                               static_cast<qsizetype>(sample.sizeInBytes()));
    auto const hash = QCryptographicHash::hash(drawn, QCryptographicHash::Sha1).toHex().left(12);
    return QFontInfo(QApplication::font()).family() + ", Qt " + qVersion() + ", " + QString::fromLatin1(hash);
}

/// How far two pictures of one size are apart: 0 for equal ones, 255 for black and white.
double getMeanDifference(QImage const& left, QImage const& right)
{
    double sum = 0;
    for (int y = 0; y < left.height(); ++y)
        for (int x = 0; x < left.width(); ++x) {
            auto const first = left.pixel(x, y);
            auto const second = right.pixel(x, y);
            sum += std::abs(qRed(first) - qRed(second)) + std::abs(qGreen(first) - qGreen(second)) +
                   std::abs(qBlue(first) - qBlue(second));
        }
    return sum / (3.0 * left.width() * left.height());
}

} // namespace

void expectGoldenPicture(QImage picture, std::filesystem::path const& golden)
{
    // A row that is missing, moved or of another colour makes a difference many times as large.
    constexpr double tolerance = 0.2;
    auto const letters = getLetters();
    if (isRecordingGolden()) {
        std::filesystem::create_directories(golden.parent_path());
        picture.setText(lettersKey, letters);
        ASSERT_TRUE(picture.save(toPath(golden)));
    }
    QImage const expected(toPath(golden));
    ASSERT_FALSE(expected.isNull()) << golden;
    if (expected.text(lettersKey) != letters)
        GTEST_SKIP() << "recorded with " << expected.text(lettersKey).toStdString() << ", here is "
                     << letters.toStdString();
    ASSERT_EQ(picture.size(), expected.size());
    auto const difference = getMeanDifference(picture, expected);
    EXPECT_LT(difference, tolerance) << golden;
    if (difference >= tolerance) {
        auto const seen = std::filesystem::temp_directory_path() / golden.filename();
        picture.save(toPath(seen));
        GTEST_LOG_(INFO) << "what was drawn is in " << seen;
    }
}

} // namespace qev::test
