#include "application/desktop/InspectorWindow.h"
#include "FoundationClasses/Core/Kernel/FcObject.h"
#include "FoundationClasses/Core/Kernel/FcPropertySet.h"
#include "RecordChanges.h"
#include "SampleFiles.h"
#include "Ui/PropertyGrid/PropertyGridEditing.h"
#include "Ui/PropertyGrid/PropertyGridRow.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <functional>
#include <set>

namespace {

using namespace qev;
using namespace qev::test;
using namespace qev::test::samples;
using testing::IsEmpty;
using ui::PropertyGridEditing;
using ui::PropertyGridEditor;

/// A row, by the names from the group down to it.
using Path = std::vector<std::string>;

/// What a user types into the grid of a real file, key by key, with the whole window of the program around
/// it.
class QtGridEdit : public InspectorWindow, public testing::WithParamInterface<SampleFile>
{
protected:
    QtGridEdit()
        : InspectorWindow(readFile(GetParam().path))
        , before(readFile(path))
    {
        open();
        window->getProperties().setUnusedShown(false);
        // Kinds of properties and values that files have and the grid has no row for.
        takeReports();
    }
    ~QtGridEdit() override { takeReports(); }

    /// The first objects of the first classes that have a set, by GlobalId.
    [[nodiscard]] std::vector<std::string> objects()
    {
        constexpr std::size_t mostClasses = 3;
        constexpr std::size_t mostTries = 200;
        using fc::core::kernel::FcObject;
        auto const& data = *window->getSession().getData();
        std::vector<std::string> found;
        std::set<std::string> classes;
        std::size_t tries = 0;
        for (auto const place : data.indicesFromId(FcObject::idFirst, FcObject::idLast)) {
            auto const object = fc::entityCast<FcObject>(data.entity(place));
            if (!object || classes.contains(object->getEntityName()) || ++tries > mostTries ||
                found.size() == mostClasses)
                continue;
            if (object->getPropertySetDefinitions<fc::core::kernel::FcPropertySet>().empty())
                continue;
            classes.insert(object->getEntityName());
            found.push_back(object->GlobalId.get());
        }
        return found;
    }

    void select(std::string const& object)
    {
        ASSERT_TRUE(window->selectObject(ui::toQString(object)));
        // The progress of opening a large file has taken the keys from it.
        QApplication::setActiveWindow(window.get());
        settle();
    }

    /// Tells if the selected object itself has a property set of that name.
    [[nodiscard]] bool isPropertySet(std::string const& name) const
    {
        using namespace fc::core::kernel;
        auto const object = fc::entityCast<FcObject>(window->getSession().getSelection());
        auto const sets = object->getPropertySetDefinitions<FcPropertySet>();
        return std::any_of(sets.begin(), sets.end(),
                           [&name](auto const& set) { return set->Name.get() == name; });
    }

    /// Tells if a row of texts stands for one: numbers without a unit have such rows too.
    [[nodiscard]] static bool takesWords(ui::PropertyGridRow const& shown)
    {
        auto const& check = shown.getInputCheck();
        return PropertyGridEditing::getEditor(shown) == PropertyGridEditor::Text &&
               !(check && check({"words", std::nullopt, std::nullopt}));
    }

    [[nodiscard]] static bool hasEditor(ui::PropertyGridRow const& shown, PropertyGridEditor editor)
    {
        return PropertyGridEditing::getEditor(shown) == editor &&
               (editor != PropertyGridEditor::Text ||
                (takesWords(shown) && !PropertyGridEditing::getDisplayedText(shown).empty()));
    }

    /// The rows of property sets with a value that can be edited by \p editor, at most one for each set; of
    /// rows of texts those that show words.
    [[nodiscard]] std::vector<Path> rowsWith(PropertyGridEditor editor) const
    {
        std::vector<Path> paths;
        auto const& model = window->getProperties().getGrid()->getItemModel();
        for (int group = 0; group < model.rowCount(); ++group) {
            auto const groupIndex = model.index(group, 0);
            for (int place = 0; place < model.rowCount(groupIndex); ++place) {
                auto const index = model.index(place, 0, groupIndex);
                auto const& shown = *ui::QtPropertyGridItemModel::getRow(index);
                Path const names{groupIndex.data().toString().toStdString(),
                                 index.data().toString().toStdString()};
                view().setCurrentIndex(index);
                bool const isOfSet = isPropertySet(window->getProperties().getCurrentSetName());
                if (!isOfSet || !hasEditor(shown, editor) || !(row(names) == index))
                    continue;
                paths.push_back(names);
                break;
            }
        }
        return paths;
    }

    void replaceText(Path const& names, char const* text)
    {
        startEditing(row(names));
        ASSERT_NE(QApplication::focusWidget(), nullptr);
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_A, Qt::ControlModifier);
        QTest::keyClicks(QApplication::focusWidget(), text);
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
        settle();
    }

    void press(Path const& names, Qt::Key key)
    {
        view().setFocus();
        // Not by the view itself, which would look at the modifier keys of the last event.
        view().selectionModel()->setCurrentIndex(row(names), QItemSelectionModel::ClearAndSelect |
                                                                 QItemSelectionModel::Rows);
        QTest::keyClick(&view(), key);
        settle();
    }

    /// All that the grid shows, a line for each row.
    [[nodiscard]] std::vector<std::string> shownRows() const
    {
        std::vector<std::string> lines;
        auto const& model = window->getProperties().getGrid()->getItemModel();
        for (int group = 0; group < model.rowCount(); ++group) {
            auto const groupIndex = model.index(group, 0);
            for (int place = 0; place < model.rowCount(groupIndex); ++place) {
                auto const& shown = *ui::QtPropertyGridItemModel::getRow(model.index(place, 0, groupIndex));
                lines.push_back(groupIndex.data().toString().toStdString() + " / " + shown.getName() + " = " +
                                PropertyGridEditing::getDisplayedText(shown));
            }
        }
        return lines;
    }

    /// Calls \p edit for one row of each object that has such a row. In our own models there is one at all.
    void editEach(PropertyGridEditor editor,
                  std::function<void(std::string const& object, Path const& names)> const& edit)
    {
        std::size_t edits = 0;
        for (auto const& object : objects()) {
            select(object);
            auto const rows = rowsWith(editor);
            if (rows.empty())
                continue;
            edit(object, rows.front());
            ++edits;
        }
        if (edits == 0 && !isOwn())
            GTEST_SKIP() << "there is no row to edit";
        EXPECT_GT(edits, 0u) << "there is no row to edit";
    }

    static void expectOneRecordChanged(RecordChanges const& changes)
    {
        EXPECT_EQ(changes.changed.size(), 1u);
        EXPECT_THAT(changes.added, IsEmpty());
        EXPECT_THAT(changes.removed, IsEmpty());
        EXPECT_TRUE(changes.isRestSame);
    }

    void expectSavedAndReopenedTheSame(std::string const& object)
    {
        auto const rows = shownRows();
        ASSERT_TRUE(window->getFileActions().save());
        ASSERT_TRUE(window->getFileActions().open(ui::toQString(path.string())));
        window->getProperties().setUnusedShown(false);
        select(object);
        EXPECT_EQ(shownRows(), rows);
        takeReports();
    }

    [[nodiscard]] static bool isOwn()
    {
        return GetParam().path.parent_path() == std::filesystem::path(OWN_SAMPLES_DIRECTORY);
    }

    std::string before;
};

INSTANTIATE_TEST_SUITE_P(Samples, QtGridEdit, testing::ValuesIn(wellFormedFiles()),
                         [](auto const& file) { return file.param.name; });

TEST_P(QtGridEdit, TypedTextsChangeOneRecordEachAndComeBackAfterSaving)
{
    editEach(PropertyGridEditor::Text, [this](std::string const& object, Path const& names) {
        // Objects may share a set: each text is another.
        auto const text = "Typed for " + object;
        replaceText(names, text.c_str());
        EXPECT_EQ(value(row(names)), text);
        auto const saved = window->getSession().getFile()->toText();
        auto const changes = RecordChanges::between(before, saved);
        expectOneRecordChanged(changes);
        expectSavedAndReopenedTheSame(object);
        before = readFile(path);
        EXPECT_TRUE(before == saved);
    });
}

TEST_P(QtGridEdit, ANumberTakesNumbersAndRefusesTheRest)
{
    editEach(PropertyGridEditor::Number, [this](std::string const& object, Path const& names) {
        auto const shown = value(row(names));
        replaceText(names, "none");
        EXPECT_NE(view().getMessage(), "") << "the refusal is told";
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Escape);
        settle();
        EXPECT_EQ(value(row(names)), shown);
        EXPECT_TRUE(window->getSession().getFile()->toText() == before);

        replaceText(names, shown.find('7') == 0 ? "8" : "7");
        EXPECT_NE(value(row(names)), shown);
        auto const changes = RecordChanges::between(before, window->getSession().getFile()->toText());
        expectOneRecordChanged(changes);
        expectSavedAndReopenedTheSame(object);
        before = readFile(path);
    });
}

TEST_P(QtGridEdit, SpaceTurnsACheckBoxAndUndoTurnsItBack)
{
    editEach(PropertyGridEditor::CheckBox, [this](std::string const& /*object*/, Path const& names) {
        press(names, Qt::Key_Space);
        auto const changes = RecordChanges::between(before, window->getSession().getFile()->toText());
        expectOneRecordChanged(changes);
        QTest::keyClick(window.get(), Qt::Key_Z, Qt::ControlModifier);
        settle();
        EXPECT_TRUE(window->getSession().getFile()->toText() == before);
    });
}

TEST_P(QtGridEdit, DelTakesAValueAwayAndUndoBringsItBack)
{
    editEach(PropertyGridEditor::Text, [this](std::string const& /*object*/, Path const& names) {
        auto const shown = shownRows();
        press(names, Qt::Key_Delete);
        EXPECT_NE(shownRows(), shown);
        auto const changes = RecordChanges::between(before, window->getSession().getFile()->toText());
        // A property that other sets have too stays with them.
        EXPECT_FALSE(changes.changed.empty() && changes.removed.empty());
        EXPECT_THAT(changes.added, IsEmpty());
        EXPECT_TRUE(changes.isRestSame);
        QTest::keyClick(window.get(), Qt::Key_Z, Qt::ControlModifier);
        settle();
        EXPECT_TRUE(window->getSession().getFile()->toText() == before);
        EXPECT_EQ(shownRows(), shown);
    });
}

TEST_P(QtGridEdit, AValueInAnUnusedSetMakesTheSetAndDelTakesItAway)
{
    std::size_t edits = 0;
    for (auto const& object : objects()) {
        select(object);
        std::set<std::string> used;
        auto const& model = window->getProperties().getGrid()->getItemModel();
        for (int group = 0; group < model.rowCount(); ++group)
            used.insert(model.index(group, 0).data().toString().toStdString());
        window->getProperties().setUnusedShown(true);
        settle();
        std::optional<Path> unused;
        auto const& all = window->getProperties().getGrid()->getItemModel();
        for (int group = 0; group < all.rowCount() && !unused; ++group) {
            auto const groupIndex = all.index(group, 0);
            auto const name = groupIndex.data().toString().toStdString();
            for (int place = 0; place < all.rowCount(groupIndex) && !used.contains(name) && !unused;
                 ++place) {
                auto const index = all.index(place, 0, groupIndex);
                if (takesWords(*ui::QtPropertyGridItemModel::getRow(index)))
                    unused = Path{name, index.data().toString().toStdString()};
            }
        }
        if (unused) {
            replaceText(*unused, "Made by hand");
            EXPECT_EQ(value(row(*unused)), "Made by hand");
            ++edits;
            auto const changes = RecordChanges::between(before, window->getSession().getFile()->toText());
            EXPECT_FALSE(changes.added.empty());
            EXPECT_THAT(changes.removed, IsEmpty());
            EXPECT_TRUE(changes.isRestSame);
            press(*unused, Qt::Key_Delete);
            EXPECT_TRUE(window->getSession().getFile()->toText() == before);
        }
        window->getProperties().setUnusedShown(false);
        settle();
    }
    if (edits == 0 && !isOwn())
        GTEST_SKIP() << "there is no set to make";
    EXPECT_GT(edits, 0u) << "no set could be made";
}

} // namespace
