#include "FoundationClasses/Resource/Actor/FcPostalAddress.h"

namespace qev::fc::resource::actor {

std::optional<std::string> FcPostalAddress::getAddressLine(unsigned long long place) const
{
    auto const& lines = AddressLines.get();
    return lines && place < lines->size() ? std::optional((*lines)[place]) : std::nullopt;
}

} // namespace qev::fc::resource::actor
