#pragma once

#include "Format/Ifc/Schema/DeclaredType.h"

#include <string>

namespace qev::ifc::def::schema {

class Entity;

/// The other end of a reference: which instances refer to this one, through which attribute.
struct InverseAttribute
{
    std::string name;
    /// True where exactly one instance refers; the bounds then mean nothing.
    bool isSingle = false;
    /// Set or bag, with the bounds of the number of referring instances.
    DeclaredType bounds;
    Entity const* referrer = nullptr;
    /// The attribute of `referrer` that refers.
    std::string referringAttribute;
};

} // namespace qev::ifc::def::schema
