#include "DialogButtons.h"

#include "DisplaySettings.h"
#include "ImportDialog.h"
#include "ListColumnsDialog.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <QApplication>
#include <QPushButton>
#include <QTimer>
#include <QWidget>

namespace qev::test {
namespace {

using namespace application;
using testing::ElementsAre;

/// Dialogs of a program that speaks German.
class DialogButtonsTest : public testing::Test
{
protected:
    DialogButtonsTest()
    {
        DisplaySettings settings;
        settings.language = "de";
        settings.apply({});
    }
    ~DialogButtonsTest() override
    {
        DisplaySettings settings;
        settings.language = "en";
        settings.apply({});
    }

    static std::vector<std::string> buttonTexts(QDialog const& dialog)
    {
        auto const& buttons = *dialog.findChild<QDialogButtonBox*>();
        return {buttons.button(QDialogButtonBox::Ok)->text().toStdString(),
                buttons.button(QDialogButtonBox::Cancel)->text().toStdString()};
    }
};

TEST_F(DialogButtonsTest, SpeakTheLanguageOfTheProgram)
{
    EXPECT_THAT(buttonTexts(ListColumnsDialog({}, {}, {})), ElementsAre("OK", "Abbrechen"));
    ImportDialog const dialog(ListTable{}, ImportResult{});
    EXPECT_THAT(buttonTexts(dialog), ElementsAre("Importieren", "Abbrechen"));
    EXPECT_FALSE(dialog.findChild<QDialogButtonBox*>()->button(QDialogButtonBox::Ok)->isEnabled());
}

TEST_F(DialogButtonsTest, AcceptAndRejectTheDialog)
{
    QDialog dialog;
    auto* const buttons = makeButtons(dialog);
    buttons->button(QDialogButtonBox::Ok)->click();
    EXPECT_EQ(dialog.result(), QDialog::Accepted);
    buttons->button(QDialogButtonBox::Cancel)->click();
    EXPECT_EQ(dialog.result(), QDialog::Rejected);
}

TEST_F(DialogButtonsTest, ReasonsOfAnImportAreToldInTheLanguageOfTheProgram)
{
    using Reason = ImportRefusal::Reason;
    ImportResult preview;
    for (auto const reason : {Reason::NoSuchObject, Reason::NoSuchProperty, Reason::NotEditable,
                              Reason::NotAnEntry, Reason::NotTaken})
        preview.refusals.push_back({2, "id", "column", "text", reason});
    ImportDialog const dialog(ListTable{}, preview);
    std::vector<std::string> reasons;
    for (int row = 0; row < dialog.getRefusals().topLevelItemCount(); ++row)
        reasons.push_back(dialog.getRefusals().topLevelItem(row)->text(4).toStdString());
    EXPECT_THAT(reasons, ElementsAre("es gibt kein Objekt mit dieser GlobalId",
                                     "das Objekt hat kein solches Merkmal und darf es nicht haben",
                                     "lässt sich hier nicht ändern", "ist keiner der möglichen Werte",
                                     "ist kein Wert für dieses Merkmal"));
}

TEST_F(DialogButtonsTest, MessagesStandUnderTheNameOfTheProgram)
{
    auto const nameBefore = QApplication::applicationDisplayName();
    QApplication::setApplicationDisplayName("Name for people");
    QWidget window;
    QString title;
    QTimer::singleShot(0, &window, [&title] {
        auto* const box = QApplication::activeModalWidget();
        ASSERT_NE(box, nullptr);
        title = box->windowTitle();
        box->close();
    });
    showMessage(window, QMessageBox::Information, "What there is to tell.");
    EXPECT_EQ(title, "Name for people");
    QApplication::setApplicationDisplayName(nameBefore);
}

} // namespace
} // namespace qev::test
