#include "FoundationClasses/Resource/Actor/FcTelecomAddress.h"

#include "Object/Property.h"

#include <array>
#include <utility>

namespace qev::fc::resource::actor {

std::vector<std::shared_ptr<Property>> FcTelecomAddress::getLocalProperties() const
{
    static constexpr std::array<std::pair<char const*, char const*>, 3> single = {
        std::pair("TelephoneNumbers", "TelephoneNumber"), std::pair("FacsimileNumbers", "FacsimileNumber"),
        std::pair("ElectronicMailAddresses", "MailAddress")};
    auto properties = FcTelecomAddressAttributes::getLocalProperties();
    for (auto const& property : properties) {
        for (auto const& [list, one] : single) {
            if (property->id.text() == list)
                property->id = object::PropertyId(one);
        }
    }
    return properties;
}

} // namespace qev::fc::resource::actor
