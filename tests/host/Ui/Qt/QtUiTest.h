#pragma once

#include "Core/Unit/QuantityPresentationFactory.h"
#include "ReportRecorder.h"
#include "Ui/PropertyGrid/PropertyGridRow.h"
#include "Ui/Qt/PropertyGrid/QtPropertyGrid.h"
#include "Ui/Qt/PropertyGrid/QtPropertyGridItemModel.h"
#include "Ui/Qt/PropertyGrid/QtPropertyGridView.h"
#include "Ui/Qt/QtBackend.h"
#include "Ui/Window/Controls/PropertyGridControl/PropertyGridCheckBoxProperty.h"
#include "Ui/Window/Controls/PropertyGridControl/PropertyGridControl.h"
#include "Ui/Window/Controls/PropertyGridControl/PropertyGridCustomButtonProperty.h"
#include "Ui/Window/Controls/PropertyGridControl/PropertyGridEmptyLineProperty.h"
#include "Ui/Window/Details/WindowInterfaceFactory.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <memory>
#include <QCoreApplication>
#include <QEvent>
#include <string>
#include <utility>
#include <vector>

namespace qev::test {

/// The Qt back end with one dialog.
class QtUiTest : public testing::Test
{
protected:
    QtUiTest()
        : backend(ui::QtBackend::install())
        , dialog(backend->createDialog({500, 400}, "Test"))
    {
    }
    ~QtUiTest() override
    {
        dialog.reset();
        ui::details::WindowInterfaceFactory::setBackend(nullptr);
        settle();
    }

    /// Lets everything happen that waits for the event loop.
    static void settle()
    {
        QCoreApplication::processEvents();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        QCoreApplication::processEvents();
    }

    std::shared_ptr<ui::QtBackend> backend;
    std::shared_ptr<ui::Dialog> dialog;
};

} // namespace qev::test
