#include "FoundationClasses/Core/ProductExtension/FcPort.h"

#include "FoundationClasses/Core/Kernel/FcRelNests.h"
#include "FoundationClasses/Core/ProductExtension/FcDistributionElement.h"
#include "FoundationClasses/Core/ProductExtension/FcRelConnectsPorts.h"
#include "FoundationClasses/Core/ProductExtension/FcRelConnectsPortToElement.h"

#include <algorithm>

namespace qev::fc::core::productextension {

namespace {

using kernel::FcObjectDefinition;
using Objects = std::vector<std::shared_ptr<FcObjectDefinition>>;

void addOnce(Objects& objects, std::shared_ptr<FcObjectDefinition> const& object)
{
    if (object && std::find(objects.begin(), objects.end(), object) == objects.end())
        objects.push_back(object);
}

void addOwners(Objects& objects, std::shared_ptr<FcPort> const& port)
{
    if (!port)
        return;
    for (auto const& owner : port->getOwners())
        addOnce(objects, owner);
}

} // namespace

std::vector<std::shared_ptr<FcObjectDefinition>> FcPort::getOwners() const
{
    Objects owners;
    for (auto const& reference : Nests()) {
        if (auto const relation = reference.lock())
            addOnce(owners, relation->RelatingObject->get());
    }
    for (auto const& reference : ContainedIn()) {
        if (auto const relation = reference.lock())
            addOnce(owners, relation->RelatedElement->get());
    }
    return owners;
}

std::vector<std::shared_ptr<FcObjectDefinition>> FcPort::getConnections(bool withRealizingElements) const
{
    Objects connected;
    Objects realizing;
    for (auto const& reference : ConnectedTo()) {
        if (auto const relation = reference.lock()) {
            addOwners(connected, relation->RelatedPort->get());
            addOnce(realizing, relation->RealizingElement->get());
        }
    }
    for (auto const& reference : ConnectedFrom()) {
        if (auto const relation = reference.lock()) {
            addOwners(connected, relation->RelatingPort->get());
            addOnce(realizing, relation->RealizingElement->get());
        }
    }
    if (withRealizingElements) {
        for (auto const& element : realizing)
            addOnce(connected, element);
    }
    return connected;
}

} // namespace qev::fc::core::productextension
