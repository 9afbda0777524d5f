#pragma once

#include "Ui/Window/Controls/PropertyGridControl/PropertyGridControl.h"

#include <memory>

namespace qev::test {

/// Fills grids with a row of every kind and look, for dumps and pictures that people review.
class RichGrid
{
public:
    static void fill(std::shared_ptr<ui::PropertyGridControl> const& control);

private:
    explicit RichGrid(std::shared_ptr<ui::PropertyGridControl> const& control);

    void addAttributes();
    void addSet();
    void addLooks();
    void addQuantities();

    std::shared_ptr<ui::PropertyGridControl> const& m_control;
};

} // namespace qev::test
