#pragma once

#include "FoundationClasses/FcBase.h"
#include "UI/FoundationClasses/Controls/PropertySetControl.h"
#include "UI/FoundationClasses/Set/PropertySetDefinition.h"
#include "Ui/Window/Window.h"

#include <cstddef>
#include <memory>
#include <string>
#include <vector>

namespace qev::test {

/// Counts how often it is shown and hidden.
class ToyWindow : public qev::ui::Window
{
public:
    void show() override { ++shown; }
    void hide() override { ++hidden; }
    int shown = 0;
    int hidden = 0;
};

/// A flavour that puts nothing on the screen and keeps what is asked of it.
class ToyControl : public fc::ui::PropertySetControl
{
public:
    using PropertySetControl::PropertySetControl;

    std::shared_ptr<ToyWindow> window;
    std::vector<std::string> calls;
    std::vector<std::size_t> objectsAtRefresh;

    void reset() override
    {
        calls.emplace_back("reset");
        PropertySetControl::reset();
    }

private:
    void refreshDisplay() override
    {
        calls.emplace_back("refreshDisplay");
        objectsAtRefresh.push_back(getObjects().size());
    }
    std::shared_ptr<qev::ui::Window> getWindow() override { return window; }
};

/// The names of the sets shown, "null" for one that could not be made.
inline std::vector<std::string> namesOf(fc::ui::PropertySetControl const& control)
{
    std::vector<std::string> names;
    for (auto const& definition : control.getDefinitions())
        names.push_back(definition ? definition->getName() : "null");
    return names;
}

/// The first set of that name; null when there is none.
inline fc::ui::PropertySetDefinition const* findSet(fc::ui::PropertySetControl const& control,
                                                    std::string const& name)
{
    for (auto const& definition : control.getDefinitions()) {
        if (definition && definition->getName() == name)
            return definition.get();
    }
    return nullptr;
}

} // namespace qev::test
