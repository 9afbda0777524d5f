#include "ClassificationDialog.h"

#include "Classification/ClassificationReader.h"
#include "ClassificationQuestion.h"
#include "GoldenPicture.h"

#include <gtest/gtest.h>
#include <QApplication>
#include <QDialogButtonBox>
#include <QPixmap>
#include <QPushButton>
#include <QTest>
#include <QTimer>

namespace qev::test {
namespace {

using namespace application;
using classification::ClassificationSystem;
using Codes = std::vector<std::string>;

std::filesystem::path const goldenFolder = QEV_GOLDEN_FOLDER;
std::filesystem::path const samples = OWN_SAMPLES_DIRECTORY;

class ClassificationDialogTest : public testing::Test
{
protected:
    ClassificationDialogTest()
        : system(classification::readClassifications(samples / "sample-classes.csv").systems.at(0))
    {
    }

    void open(std::string const& selectedCode)
    {
        dialog = std::make_unique<ClassificationDialog>(*system, selectedCode);
        dialog->show();
        dialog->getSearch().setFocus();
    }
    [[nodiscard]] QPushButton& button(QDialogButtonBox::StandardButton which) const
    {
        return *dialog->findChild<QDialogButtonBox*>()->button(which);
    }
    [[nodiscard]] QString chosenText() const
    {
        auto const* const item = dialog->getTree().currentItem();
        return item ? item->text(0) : QString();
    }
    [[nodiscard]] int shownCount() const
    {
        int shown = 0;
        for (QTreeWidgetItemIterator item(&dialog->getTree(), QTreeWidgetItemIterator::NotHidden); *item;
             ++item)
            ++shown;
        return shown;
    }

    std::shared_ptr<ClassificationSystem> system;
    std::unique_ptr<ClassificationDialog> dialog;
};

TEST_F(ClassificationDialogTest, BeginsWithThePresentCode)
{
    open("331.1");
    EXPECT_EQ(chosenText(), "331.1");
    EXPECT_TRUE(dialog->getTree().currentItem()->parent()->isExpanded());
    EXPECT_EQ(dialog->getChosenPath(), (Codes{"300", "330", "331", "331.1"}));
    EXPECT_TRUE(button(QDialogButtonBox::Ok).isEnabled());
}

TEST_F(ClassificationDialogTest, CannotBeAcceptedWhileNothingIsChosen)
{
    open("");
    EXPECT_EQ(dialog->getChosenPath(), Codes());
    EXPECT_FALSE(button(QDialogButtonBox::Ok).isEnabled());
    dialog->getTree().setCurrentItem(dialog->getTree().topLevelItem(1));
    EXPECT_EQ(dialog->getChosenPath(), (Codes{"400"}));
    EXPECT_TRUE(button(QDialogButtonBox::Ok).isEnabled());
}

TEST_F(ClassificationDialogTest, SearchShowsWhatItFindsWithTheWayToIt)
{
    open("");
    QTest::keyClicks(&dialog->getSearch(), "brick");
    EXPECT_EQ(chosenText(), "331.1");
    EXPECT_EQ(shownCount(), 4);
    EXPECT_EQ(dialog->getChosenPath().back(), "331.1");
}

TEST_F(ClassificationDialogTest, SearchThatFindsNothingLeavesNothingToChoose)
{
    open("331.1");
    QTest::keyClicks(&dialog->getSearch(), "zzz");
    EXPECT_EQ(shownCount(), 0);
    EXPECT_EQ(dialog->getChosenPath(), Codes());
    EXPECT_FALSE(button(QDialogButtonBox::Ok).isEnabled());
    dialog->getSearch().clear();
    EXPECT_EQ(dialog->getChosenPath().back(), "331.1");
    EXPECT_TRUE(button(QDialogButtonBox::Ok).isEnabled());
}

TEST_F(ClassificationDialogTest, ArrowsMoveThroughTheTreeWhileTheSearchIsTypedIn)
{
    open("");
    QTest::keyClicks(&dialog->getSearch(), "33");
    auto const first = chosenText();
    QTest::keyClick(&dialog->getSearch(), Qt::Key_Down);
    EXPECT_NE(chosenText(), first);
    QTest::keyClick(&dialog->getSearch(), Qt::Key_Return);
    EXPECT_EQ(dialog->result(), QDialog::Accepted);
}

TEST_F(ClassificationDialogTest, LooksAsReviewed)
{
    QApplication::setCursorFlashTime(0);
    open("331.1");
    QCoreApplication::processEvents();
    expectGoldenPicture(dialog->grab().toImage(), goldenFolder / "ClassificationDialog.png");
}

class ClassificationQuestionTest : public ClassificationDialogTest
{
protected:
    /// Presses a key in the dialog that opens next.
    static void pressLater(Qt::Key key)
    {
        QTimer::singleShot(0, [key] { QTest::keyClick(QApplication::activeModalWidget(), key); });
    }

    QWidget window;
    ClassificationQuestion question{window};
};

TEST_F(ClassificationQuestionTest, AnswersWithTheWayToTheChosenCode)
{
    pressLater(Qt::Key_Return);
    EXPECT_EQ(question.show(*system, nullptr, nullptr, "411"), (Codes{"400", "410", "411"}));
}

TEST_F(ClassificationQuestionTest, AnswersNothingWhenTheUserCancels)
{
    pressLater(Qt::Key_Escape);
    EXPECT_EQ(question.show(*system, nullptr, nullptr, "411"), Codes());
}

/// A system that keeps its codes to itself.
class SilentSystem final : public classification::ClassificationInterface
{
public:
    [[nodiscard]] std::string getKey() const override { return "Silent"; }
    [[nodiscard]] std::string getDescription() const override { return {}; }
};

TEST_F(ClassificationQuestionTest, AsksForTheCodeOfASystemThatDoesNotTellItsCodes)
{
    SilentSystem silent;
    pressLater(Qt::Key_Return);
    EXPECT_EQ(question.show(silent, nullptr, nullptr, "21.10"), (Codes{"21.10"}));
    pressLater(Qt::Key_Escape);
    EXPECT_EQ(question.show(silent, nullptr, nullptr, "21.10"), Codes());
}

} // namespace
} // namespace qev::test
