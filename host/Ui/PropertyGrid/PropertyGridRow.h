#pragma once

#include "HostUiExport.h"
#include "Ui/PropertyGrid/PropertyGridInput.h"
#include "Ui/PropertyGrid/PropertyGridRowState.h"
#include "Ui/Window/Controls/PropertyGridControl/PropertyGridPropertyInterface.h"

#include <cstddef>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <utility>
#include <vector>

namespace qev::ui {

class PropertyGridModel;

/// One row of a property grid, for any back end: its state, its child rows, and what the owner attached.
///
/// A row is owned by the row above it or by the model it stands in. Each change of a row that stands
/// in a model is told to the model's observers.
class HOSTUI_EXPORT PropertyGridRow final : public PropertyGridPropertyInterface
{
public:
    /// Looks at an input before the row takes it. \returns why it is refused, for the user; nothing to let it
    /// pass.
    using InputCheck = std::function<std::optional<std::string>(PropertyGridInput const& input)>;
    /// Runs when the user has pressed the button of that place among the row's buttons.
    using ButtonFunction = std::function<void(std::size_t button)>;

    explicit PropertyGridRow(PropertyGridRowState state);
    ~PropertyGridRow() override;

    /// This row, shared; null while only the handle that made it holds it.
    [[nodiscard]] std::shared_ptr<PropertyGridRow> getShared();

    [[nodiscard]] PropertyGridRowState const& getState() const { return m_state; }
    /// The presentation of the number; null without one.
    [[nodiscard]] unit::QuantityPresentationBase const* getQuantityPresentation() const
    {
        return m_presentation.get();
    }
    [[nodiscard]] std::vector<std::shared_ptr<PropertyGridRow>> const& getChildren() const
    {
        return m_children;
    }
    /// The row above; null for a top-level row and for one that has no place yet.
    [[nodiscard]] PropertyGridRow* getParent() const { return m_parent; }
    /// The model the row stands in; null while it stands in none.
    [[nodiscard]] PropertyGridModel* getModel() const { return m_model; }

    /// Sets the number; nothing blanks the row.
    void setNumber(std::optional<double> number);
    void setText(std::string text);
    void setCheckState(CheckState state);

    /// Gives the row another state and presentation in one go; what it is and stands over stays.
    void renew(PropertyGridRowState state, std::unique_ptr<unit::QuantityPresentationBase> presentation);

    void setInputCheck(InputCheck check) { m_inputCheck = std::move(check); }
    [[nodiscard]] InputCheck const& getInputCheck() const { return m_inputCheck; }
    void setButtonFunction(ButtonFunction function) { m_buttonFunction = std::move(function); }
    [[nodiscard]] ButtonFunction const& getButtonFunction() const { return m_buttonFunction; }

    /// Puts the row and those below it under \p parent in \p model; both null when it is removed.
    void setPlace(PropertyGridModel* model, PropertyGridRow* parent);

    [[nodiscard]] std::string getName() const override { return m_state.name; }
    bool getStringValue(std::string& value) const override;
    bool getDoubleValue(double& value) const override;
    void setValue(std::string const& text, bool notify) override;
    [[nodiscard]] bool hasQuantityPresentation() const override { return m_presentation != nullptr; }
    void setQuantityPresentation(std::unique_ptr<unit::QuantityPresentationBase> presentation) override;
    [[nodiscard]] void* getUserData() const override { return m_userData; }
    void setUserData(void* userData) override { m_userData = userData; }
    void addSubProperty(std::shared_ptr<PropertyGridPropertyInterface> property) override;
    [[nodiscard]] std::size_t getSubPropertyCount() const override { return m_children.size(); }
    void setDescription(std::string const& description) override;
    void addOption(std::string const& text, bool enabled) override;
    void setOptionsOnly(bool optionsOnly) override;
    void allowEdit(bool allowed) override;
    void enable(bool enabled) override;
    [[nodiscard]] bool isEnabled() const override { return m_state.enabled; }
    void setEmptyState(bool active) override;
    void setHint(std::string const& hint) override;
    void setBoldFontStyleForNameAndValue() override;
    void setBackgroundColour(attr::Colour const& colour) override;
    void setAlignment(int alignment) override;
    void setHorizontalLine(int horizontalLine) override;
    void setNameIndentationInCharacters(unsigned int characters) override;
    void showButton(bool shown) override;
    [[nodiscard]] ButtonClickedHandlers& getButtonClickedHandlers() override { return m_buttonClicked; }
    [[nodiscard]] CheckState getCheckState() const override { return m_state.checkState; }
    void setValueDisplayMode(ValueDisplayMode mode) override;
    [[nodiscard]] CheckBoxClickedHandlers& getCheckBoxClickedHandlers() override { return m_checkBoxClicked; }
    [[nodiscard]] CustomButtonClickedHandlers& getCustomButtonClickedHandlers() override
    {
        return m_customButtonClicked;
    }

private:
    void changed();

    PropertyGridRowState m_state;
    std::unique_ptr<unit::QuantityPresentationBase> m_presentation;
    void* m_userData = nullptr;
    std::vector<std::shared_ptr<PropertyGridRow>> m_children;
    PropertyGridRow* m_parent = nullptr;
    PropertyGridModel* m_model = nullptr;
    ButtonClickedHandlers m_buttonClicked;
    CheckBoxClickedHandlers m_checkBoxClicked;
    CustomButtonClickedHandlers m_customButtonClicked;
    InputCheck m_inputCheck;
    ButtonFunction m_buttonFunction;
};

} // namespace qev::ui
