#pragma once

#include "ReportRecorder.h"
#include "Ui/Headless/HeadlessBackend.h"
#include "Ui/Window/Controls/ListControl/ListControl.h"
#include "Ui/Window/Controls/PropertyGridControl/PropertyGridControl.h"
#include "Ui/Window/Details/WindowInterfaceFactory.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <memory>
#include <string>

namespace qev::test {

/// A headless back end with one dialog on its screen.
class UiTest : public testing::Test
{
protected:
    UiTest()
        : backend(ui::HeadlessBackend::install())
        , dialog(backend->createDialog({800, 600}))
    {
    }
    ~UiTest() override
    {
        dialog.reset();
        ui::details::WindowInterfaceFactory::setBackend(nullptr);
    }

    [[nodiscard]] std::shared_ptr<ui::PropertyGridControl> createGrid() const
    {
        return ui::Window::create<ui::PropertyGridControl>(dialog, 0, 0, {10, 10, 400, 500});
    }

    [[nodiscard]] std::shared_ptr<ui::ListControl>
    createList(unsigned int style = ui::ListControl::ReportStyle) const
    {
        return ui::Window::create<ui::ListControl>(dialog, style, 0, {10, 10, 400, 500});
    }

    std::shared_ptr<ui::HeadlessBackend> backend;
    std::shared_ptr<ui::Dialog> dialog;
};

/// Expects a report of an operation of `qev::ui::Window`.
inline void expectWindowReport(std::string const& text, std::string const& operation)
{
    expectReport(text, "qev::ui::Window::" + operation, "Ui/Window/Window");
}

} // namespace qev::test
