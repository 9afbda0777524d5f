#pragma once

// What the source files of FcEditController share.

#include "Core/Assert/Assert.h"
#include "FoundationClasses/Change/ChangeLog.h"
#include "FoundationClasses/Data.h"
#include "UI/FoundationClasses/FcEditController.h"
#include "UI/FoundationClasses/PropertyInterface/FcPropertyWrapper.h"
#include "Ui/Window/Controls/ListControl/ListControl.h"
#include "Ui/Window/Controls/PopupControl/PopupControl.h"

#include <algorithm>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace qev::fc::ui::edit {

/// The path of the heading above the classifications of an object.
inline constexpr char classificationsId[] = "Classifications";

inline void reportInController(std::string_view operation, std::string_view text)
{
    assert::report(text, "qev::fc::ui::edit::FcEditController::" + std::string(operation),
                   "UI/FoundationClasses/FcEditController");
}

/// One step of undo for all that is changed while it lives; none without a model.
class EditStep
{
public:
    EditStep(std::shared_ptr<Data> data, std::string name)
        : m_data(std::move(data))
    {
        if (m_data)
            m_step.emplace(m_data->changes(), std::move(name));
    }

private:
    // The model has to outlive the step.
    std::shared_ptr<Data> m_data;
    std::optional<ChangeLog::Step> m_step;
};

/// Objects that were selected together may share what is edited.
template <class T>
[[nodiscard]] std::vector<std::shared_ptr<T>>
withoutRepetitions(std::vector<std::shared_ptr<T>> const& entities)
{
    std::vector<std::shared_ptr<T>> distinct;
    for (auto const& entity : entities) {
        if (std::find(distinct.begin(), distinct.end(), entity) == distinct.end())
            distinct.push_back(entity);
    }
    return distinct;
}

template <class T>
std::vector<std::shared_ptr<T>> FcEditController::getFcObjectsBeingEdited(PropertyId const& id) const
{
    std::vector<std::shared_ptr<T>> objects;
    for (auto const& wrapper : getEditedWrappers()) {
        auto object = entityCast<T>(std::get<std::shared_ptr<FcBase>>(wrapper->getMappedProperty(id)));
        if (!object) {
            reportInController("getFcObjectsBeingEdited::<lambda_1>::operator ()",
                               "Unexpected object type in selection set.");
            return {};
        }
        objects.push_back(std::move(object));
    }
    return objects;
}

} // namespace qev::fc::ui::edit
