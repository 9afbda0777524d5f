#pragma once

#include "Core/Unit/UnitPreferences.h"
#include "Core/Utilities/Events/EventHandlerContainer.h"

#include <QComboBox>
#include <QSpinBox>
#include <QTableWidget>

namespace qev::application {

/// A row for each quantity: its unit, its decimals, and what a value looks like.
class UnitTable final : public QTableWidget
{
public:
    static constexpr int quantityColumn = 0;
    static constexpr int unitColumn = 1;
    static constexpr int decimalsColumn = 2;
    static constexpr int exampleColumn = 3;

    explicit UnitTable(QWidget* parent = nullptr);
    ~UnitTable() override;

    [[nodiscard]] unit::UnitPreferences const& getPreferences() const { return m_preferences; }
    void setPreferences(unit::UnitPreferences const& preferences);
    /// Shows the examples with the sign.
    void setDecimalSign(char sign);

    /// The row of a quantity; -1 for one without.
    [[nodiscard]] int getRow(unit::QuantityId quantity) const;
    [[nodiscard]] QComboBox& getUnitBox(int row) const;
    [[nodiscard]] QSpinBox& getDecimalsBox(int row) const;

    /// Fired when the user has changed a choice.
    EventHandlerContainer<void, void> onChanged;

protected:
    /// Keeps the wheel, which is meant to scroll the table, from changing what it passes over.
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void addRow(unit::QuantityFacts const& facts);
    void fillUnitBox(QComboBox& box, unit::QuantityId quantity) const;
    void takeUnit(int row);
    void takeDecimals(int row);
    void renewRow(int row);
    void renewExample(int row);

    unit::UnitPreferences m_preferences;
    bool m_isShowing = false;
};

} // namespace qev::application
