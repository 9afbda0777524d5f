#pragma once

#include "QevFoundationClassesUiExport.h"

#include <memory>
#include <string>
#include <vector>

namespace qev::fc {
class Data;
class FcBase;
} // namespace qev::fc
namespace qev::ifc::def {
class SchemaPset;
}
namespace qev::ui {
class PropertyGridProperty;
}

namespace qev::fc::ui {

class GridControlPropertyFactory;
class PropertyInterface;
class PropertySetDefinition;
class PropertySetGridControlInterface;

/// Makes the groups of a property set grid with their rows, by a chain of factories: the first one that
/// knows a property makes its row.
class QEVFOUNDATIONCLASSESUI_EXPORT GridControlPropertyFactories
{
public:
    /// \p schema gives the attributes of classes; it is not owned.
    explicit GridControlPropertyFactories(ifc::def::SchemaPset const& schema);
    ~GridControlPropertyFactories();
    GridControlPropertyFactories(GridControlPropertyFactories const&) = delete;
    GridControlPropertyFactories& operator=(GridControlPropertyFactories const&) = delete;

    /// The factories of the program. Their attributes are those of "IFC4X1", whatever schema a control has.
    static GridControlPropertyFactories& instance();

    /// The group of a set with its rows. Group and rows refer to \p definition, \p data and \p control.
    [[nodiscard]] std::unique_ptr<qev::ui::PropertyGridProperty>
    createProperty(PropertySetGridControlInterface& control, PropertySetDefinition const& definition,
                   Data& data, bool showUnused) const;

    /// The group of an object's attributes with its rows, which cannot be edited. \p label may be empty: the
    /// group is then named after the class of the object, in the present language.
    [[nodiscard]] std::unique_ptr<qev::ui::PropertyGridProperty>
    createProperty(PropertySetGridControlInterface& control, FcBase const& object, std::string const& label,
                   Data& data, bool showUnused, std::vector<std::string> const& contexts) const;

private:
    [[nodiscard]] std::unique_ptr<qev::ui::PropertyGridProperty>
    createSetProperty(PropertySetDefinition const& definition) const;
    [[nodiscard]] std::unique_ptr<qev::ui::PropertyGridProperty>
    createRow(PropertySetGridControlInterface& control, PropertyInterface& property, Data& data,
              bool showUnused) const;

    std::vector<std::unique_ptr<GridControlPropertyFactory>> m_factories;
    ifc::def::SchemaPset const* m_schema;
};

} // namespace qev::fc::ui
