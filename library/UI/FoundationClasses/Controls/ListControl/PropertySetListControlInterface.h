#pragma once

#include "QevFoundationClassesUiExport.h"
#include "UI/FoundationClasses/Controls/PropertySetControl.h"

#include <cstddef>
#include <memory>
#include <set>
#include <string>
#include <utility>
#include <vector>

namespace qev::fc::ui {

/// What those who work with a list of objects see of it.
class QEVFOUNDATIONCLASSESUI_EXPORT PropertySetListControlInterface
{
public:
    virtual ~PropertySetListControlInterface();

    /// The selected objects with their rows, ascending by row.
    [[nodiscard]] virtual std::vector<std::pair<std::shared_ptr<FcBase>, std::size_t>>
    getSelectedObjectsAndIndices() const = 0;
    /// See `PropertySetControl`.
    virtual void
    notifyPropertySetPropertyChanged(std::string const& setName, std::string const& propertyName,
                                     std::set<std::size_t> const& objectIndices,
                                     PropertySetControl::PropertyChangedNotificationType type) = 0;
};

} // namespace qev::fc::ui
