#pragma once

#include "UI/FoundationClasses/Controls/Formatters/ListControlPropertyFormatterInterface.h"
#include "UI/FoundationClasses/Controls/Formatters/ListControlPropertyFormatterStrategyInterface.h"

namespace qev::fc::ui {

/// Answers by asking strategies, in the order in which they were added: the first answer counts, and
/// the columns of all of them are joined.
///
/// Without an answer no value is local, no column hidden, and texts are empty.
class QEVFOUNDATIONCLASSESUI_EXPORT ListControlPropertyFormatter
    : public ListControlPropertyFormatterInterface
{
public:
    ListControlPropertyFormatter();
    ~ListControlPropertyFormatter() override;

    /// \p strategy must not be null.
    void addStrategy(std::shared_ptr<ListControlPropertyFormatterStrategyInterface> const& strategy);

    void setObject(std::shared_ptr<Data> data, std::shared_ptr<FcBase> object) override;
    void setListControl(std::shared_ptr<qev::ui::ListControl> const& listControl) override;
    void onItemAndColumnCountUpdated() override;
    [[nodiscard]] bool doesItemContainLocalValue(std::string const& setName,
                                                 std::string const& propertyName) const override;
    void onResetItemToGlobalValue(std::string const& setName, std::string const& propertyName) override;
    [[nodiscard]] bool isPropertyToBeHiddenByDefault(std::string const& setName,
                                                     std::string const& propertyName) const override;
    [[nodiscard]] std::vector<CustomColumn> getCustomColumns() const override;
    [[nodiscard]] std::string getCustomColumnItemString(std::string const& columnId) const override;

private:
    std::vector<std::shared_ptr<ListControlPropertyFormatterStrategyInterface>> m_strategies;
};

} // namespace qev::fc::ui
