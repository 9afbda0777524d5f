#include "Ui/Window/Controls/ListControl/ListControlHeader.h"

#include "Core/Assert/Assert.h"

namespace qev::ui {

void ListControlHeader::setDefaultHiddenColumns(std::set<std::size_t> const& columns)
{
    if (m_interface)
        m_interface->setDefaultHiddenColumns(columns);
    else
        assert::report("List control header interface not set.",
                       "qev::ui::ListControlHeader::setDefaultHiddenColumns",
                       "Ui/Window/Controls/ListControl/ListControlHeader");
}

} // namespace qev::ui
