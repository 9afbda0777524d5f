#include "Core/DateTime/DateTimeFormat.h"
#include "FoundationClasses/Resource/Actor/FcPersonAndOrganization.h"
#include "FoundationClasses/Resource/Utility/FcApplication.h"
#include "FoundationClasses/Resource/Utility/FcOwnerHistory.h"
#include "UI/FoundationClasses/PropertyInterface/GetProperties.h"
#include "UI/FoundationClasses/PropertyInterface/GetValue.h"
#include "UI/FoundationClasses/PropertyInterface/PropertyRows.h"
#include "UI/FoundationClasses/PropertyInterface/SetValue.h"

namespace qev::fc::ui::propertyinterface {

using datetime::DateForm;
using datetime::DateTimeFormat;
using datetime::TimeForm;
using resource::utility::FcOwnerHistory;

namespace {

constexpr char creationDate[] = "CreationDate";
constexpr char lastModifiedDate[] = "LastModifiedDate";

std::string textOf(std::int64_t timeStamp)
{
    std::chrono::sys_seconds const time{std::chrono::seconds(timeStamp)};
    return DateTimeFormat(DateForm::Iso, TimeForm::Seconds).toString(time);
}

std::optional<std::int64_t> timeStampFrom(std::string const& text)
{
    for (DateForm const form : {DateForm::Iso, DateForm::DayFirst}) {
        if (auto const time = DateTimeFormat(form, TimeForm::Seconds).fromString(text))
            return time->time_since_epoch().count();
    }
    return std::nullopt;
}

void addReferred(char const* id, std::shared_ptr<FcBase const> const& referred, FcOwnerHistory const& history,
                 Property& group)
{
    if (referred)
        group.children.push_back(makeGroup(id, history, referred));
}

} // namespace

bool GetProperties::visit(FcOwnerHistory const& history)
{
    history.FcBase::accept(*this);
    if (auto const group = groupOf(*this)) {
        addReferred("OwningUser", history.OwningUser->get(), history, *group);
        addReferred("OwningApplication", history.OwningApplication->get(), history, *group);
        addReferred("LastModifyingUser", history.LastModifyingUser->get(), history, *group);
        addReferred("LastModifyingApplication", history.LastModifyingApplication->get(), history, *group);
    }
    return false;
}

bool GetValue::visit(FcOwnerHistory const& history)
{
    if (id.text() == creationDate) {
        value = textOf(history.CreationDate.get());
        return false;
    }
    if (id.text() == lastModifiedDate) {
        auto const& date = history.LastModifiedDate.get();
        value = date ? std::optional(textOf(*date)) : std::nullopt;
        return false;
    }
    return true;
}

bool SetValue::visit(FcOwnerHistory& history)
{
    if (id.text() == creationDate) {
        if (auto const timeStamp = timeStampFrom(value->get<std::string>()))
            history.CreationDate = *timeStamp;
        return false;
    }
    if (id.text() == lastModifiedDate) {
        auto const text = value->get<std::optional<std::string>>();
        auto const timeStamp = text ? timeStampFrom(*text) : std::nullopt;
        if (!text || timeStamp)
            history.LastModifiedDate = timeStamp;
        return false;
    }
    return true;
}

} // namespace qev::fc::ui::propertyinterface
