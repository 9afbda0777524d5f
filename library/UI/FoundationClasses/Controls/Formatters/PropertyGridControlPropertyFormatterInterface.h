#pragma once

#include "QevFoundationClassesUiExport.h"

#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace qev::fc {
class Data;
class FcBase;
} // namespace qev::fc

namespace qev::ui {
class PropertyGridProperty;
}

namespace qev::fc::ui {

/// Decides how a property grid looks and behaves, beyond what holds for all controls.
class QEVFOUNDATIONCLASSESUI_EXPORT PropertyGridControlPropertyFormatterInterface
{
public:
    /// How the value of a row is aligned, by the numbers of the toolkit.
    enum class Alignment : int
    {
        /// The toolkit's default.
        Alignment0 = 0,
        Alignment1 = 1,
    };

    /// Where an empty row keeps a property apart.
    enum class EmptyLineState : int
    {
        None = 0,
        Before = 1,
        After = 2,
        BeforeAndAfter = 3,
    };

    /// Which line a row has across the grid.
    enum class HorizontalLineState : int
    {
        None = 0,
        /// The toolkit's lines 0, 1 and 2.
        Line0 = 1,
        Line1 = 2,
        Line2 = 3,
    };

    virtual ~PropertyGridControlPropertyFormatterInterface();

    /// No control calls this: the host does, when its strategies need the object.
    virtual void setObject(std::shared_ptr<Data> data, std::shared_ptr<FcBase> object) = 0;
    /// True when rows are to have a button of their own kind.
    [[nodiscard]] virtual bool wantCustomButtonProperties() const = 0;
    [[nodiscard]] virtual bool wantButton(std::string const& setName,
                                          std::string const& propertyName) const = 0;
    virtual void onButtonClicked(std::string const& setName, std::string const& propertyName) = 0;
    /// The row is dressed and not yet in the grid.
    virtual void onPropertyCreated(std::string const& setName, std::string const& propertyName,
                                   qev::ui::PropertyGridProperty& property) = 0;
    [[nodiscard]] virtual Alignment getAlignment(std::string const& setName,
                                                 std::string const& propertyName) const = 0;
    [[nodiscard]] virtual EmptyLineState getEmptyLineState(std::string const& setName,
                                                           std::string const& propertyName) const = 0;
    [[nodiscard]] virtual HorizontalLineState
    getHorizontalLineState(std::string const& setName, std::string const& propertyName) const = 0;
    [[nodiscard]] virtual bool wantBoldFontStyleForNameAndValue(std::string const& setName,
                                                                std::string const& propertyName) const = 0;
    [[nodiscard]] virtual unsigned int
    getPropertyNameIndentationInCharacters(std::string const& setName,
                                           std::string const& propertyName) const = 0;
    /// The names of the sets in the order in which they are to stand. Sets that it leaves out are not shown.
    [[nodiscard]] virtual std::optional<std::vector<std::string>> getPropertySetOrder() const = 0;
};

} // namespace qev::fc::ui
