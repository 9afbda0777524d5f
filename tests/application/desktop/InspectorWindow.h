#pragma once

#include "MainWindow.h"
#include "PropertyPane.h"
#include "ReportRecorder.h"
#include "SearchPanel.h"
#include "SmallBuilding.h"
#include "TemporaryFolder.h"
#include "Ui/Qt/PropertyGrid/QtPropertyGrid.h"
#include "Ui/Qt/PropertyGrid/QtPropertyGridView.h"
#include "Ui/Qt/QtBackend.h"
#include "Ui/Qt/QtText.h"
#include "Ui/Window/Details/WindowInterfaceFactory.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <QApplication>
#include <QTest>

namespace qev::test {

/// A window of the program with a small building to open, whose questions are answered by the test.
class InspectorWindow : public testing::Test
{
protected:
    explicit InspectorWindow(std::string_view building = smallBuilding)
        : backend(ui::QtBackend::install())
        , window(std::make_unique<application::MainWindow>(backend))
        , path(folder.write("small.ifc", building))
    {
        application::FileQuestions questions;
        questions.leaveChanges = [this](QString const&) {
            asked.emplace_back("leave");
            return leave;
        };
        questions.overwriteChanged = [this](QString const&) {
            asked.emplace_back("overwrite");
            return overwrite;
        };
        questions.tellProblem = [this](QString const& text, QString const&) {
            asked.push_back(text.toStdString());
        };
        questions.pathToSave = [this](QString const&) { return pathToSave; };
        window->setQuestions(questions);
        window->show();
        QApplication::setActiveWindow(window.get());
    }
    ~InspectorWindow() override
    {
        window.reset();
        ui::details::WindowInterfaceFactory::setBackend(nullptr);
        expectOnlyKnownReports();
    }

    /// The sets of the standard have properties of kinds that are not shown; that is reported, and nothing
    /// else.
    static void expectOnlyKnownReports()
    {
        for (auto const& report : takeReports())
            EXPECT_THAT(report.text, testing::EndsWith(" not implemented."));
    }

    static void settle() { QCoreApplication::processEvents(); }
    void open() { ASSERT_TRUE(window->getFileActions().open(QString::fromStdString(path.string()))); }
    [[nodiscard]] ui::QtPropertyGridView& view() const
    {
        return window->getProperties().getGrid()->getView();
    }

    [[nodiscard]] QModelIndex row(std::vector<std::string> const& names) const
    {
        auto const& model = window->getProperties().getGrid()->getItemModel();
        QModelIndex found;
        for (auto const& name : names) {
            auto const matches = model.match(model.index(0, 0, found), Qt::DisplayRole, ui::toQString(name),
                                             1, Qt::MatchExactly | Qt::MatchCaseSensitive);
            if (matches.isEmpty())
                return {};
            found = matches.front();
        }
        return found;
    }
    [[nodiscard]] QModelIndex fireRating() const { return row({"Pset_WallCommon", "FireRating"}); }
    [[nodiscard]] std::string value(QModelIndex const& index) const
    {
        return index.siblingAtColumn(1).data().toString().toStdString();
    }
    void startEditing(QModelIndex const& index)
    {
        view().setFocus();
        view().setCurrentIndex(index);
        QTest::keyClick(&view(), Qt::Key_F2);
        ASSERT_NE(QApplication::focusWidget(), &view()) << "no editor has opened";
    }
    void typeInto(QModelIndex const& index, char const* text)
    {
        startEditing(index);
        QTest::keyClicks(QApplication::focusWidget(), text);
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
        settle();
    }
    TemporaryFolder folder;
    std::shared_ptr<ui::QtBackend> backend;
    std::unique_ptr<application::MainWindow> window;
    std::filesystem::path path;
    application::FileQuestions::Leave leave = application::FileQuestions::Leave::Stay;
    bool overwrite = false;
    QString pathToSave;
    std::vector<std::string> asked;
};

} // namespace qev::test
