#pragma once

#include "library/kit/LogFormatter.h"
#include "PropertySetGridControlTest.h"

#include <memory>

namespace qev::test {

/// A grid with one row, "Code" of "Pset_A", so that what concerns each row happens once.
class DressedRowTest : public PropertySetGridControlTest
{
protected:
    DressedRowTest()
    {
        schema =
            toySchemaWith(SetBuilder("Pset_A").single("Code", "IfcLabel").applicableTo("IfcProduct").take());
        gridFormatter = toyGridFormatter;
    }

    [[nodiscard]] ui::PropertyGridRowState const& state() const { return row("Pset_A", "Code")->getState(); }

    /// Gives the control the formatter `toyFormatter`.
    void useFormatter() { formatter = toyFormatter; }

    std::shared_ptr<ToyGridFormatter> const toyGridFormatter = std::make_shared<ToyGridFormatter>();
    std::shared_ptr<LogFormatter> const toyFormatter = std::make_shared<LogFormatter>();
};

} // namespace qev::test
