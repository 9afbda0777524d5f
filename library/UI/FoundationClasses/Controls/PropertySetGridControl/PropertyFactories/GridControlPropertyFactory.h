#pragma once

#include "QevFoundationClassesUiExport.h"

#include <memory>

namespace qev::fc {
class Data;
}
namespace qev::ui {
class PropertyGridProperty;
}

namespace qev::fc::ui {

class PropertyInterface;
class PropertySetGridControlInterface;

/// Makes the grid row of one kind of property. Without state.
class QEVFOUNDATIONCLASSESUI_EXPORT GridControlPropertyFactory
{
public:
    struct CreatePropertyParams
    {
        PropertySetGridControlInterface& gridControl;
        /// What to show. The row refers to it.
        PropertyInterface* property;
        /// The model, which clicks on a check box write to.
        Data* data;
        /// Rows without a value are wanted.
        bool showUnused;
    };

    virtual ~GridControlPropertyFactory();

    /// The row; null when the property is of another kind, or when there is nothing to show.
    [[nodiscard]] virtual std::unique_ptr<qev::ui::PropertyGridProperty>
    createProperty(CreatePropertyParams const& params) const = 0;
};

} // namespace qev::fc::ui
