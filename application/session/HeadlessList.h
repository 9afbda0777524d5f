#pragma once

#include "FoundationClasses/Data.h"
#include "UI/FoundationClasses/Controls/ListControl/PropertySetListControl.h"
#include "Ui/Headless/HeadlessBackend.h"
#include "Ui/List/ListEditing.h"

#include <cstddef>
#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace qev::application {

/// One column of a list of objects.
struct ListColumn
{
    std::size_t index = 0;
    /// Set name, a dot and property name; for a column of the program's own its id.
    std::string id;
    /// The title as the list shows it.
    std::string title;
    /// The unit that its numbers are shown in; empty without one.
    std::string unit;
    /// One of the program's own.
    bool isCustom = false;
};

/// The columns of \p control, from left to right.
[[nodiscard]] std::vector<ListColumn> listColumnsOf(fc::ui::PropertySetListControl const& control);

/// A list of objects on the headless back end, read and driven as by a user: GlobalId and name, and the
/// properties that the objects have in common.
///
/// The current back end stays the current one, so that a program with windows can use this beside them.
class HeadlessList
{
public:
    /// Shows only \p columns, by their ids, or all when there are none.
    explicit HeadlessList(std::shared_ptr<fc::Data> data, std::vector<std::string> columns = {});
    ~HeadlessList();

    void show(std::vector<std::shared_ptr<fc::FcBase>> const& objects);
    [[nodiscard]] std::vector<ListColumn> columns() const { return listColumnsOf(*m_control); }
    [[nodiscard]] ui::HeadlessListControl& list() const;
    [[nodiscard]] fc::ui::PropertySetListControl& control() const { return *m_control; }
    [[nodiscard]] ui::ListEditing editing() const { return ui::ListEditing(m_control->getListControl()); }

private:
    std::shared_ptr<fc::Data> m_data;
    std::shared_ptr<ui::HeadlessBackend> m_backend;
    std::shared_ptr<ui::Dialog> m_dialog;
    std::shared_ptr<fc::ui::PropertySetListControl> m_control;
};

} // namespace qev::application
