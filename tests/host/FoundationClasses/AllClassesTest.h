#pragma once

#include "FoundationClasses/EntityClass.h"
#include "FoundationClasses/FcBase.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace qev::fc::test {

/// A test that runs for every class of the model; the class's name stands in the name of the test.
class AllClassesTest : public testing::TestWithParam<unsigned int>
{
protected:
    [[nodiscard]] unsigned int number() const { return GetParam(); }
    [[nodiscard]] EntityClass const& entityClass() const { return *entityClassFromNumber(GetParam()); }
};

/// The class numbers of the model, `FcBase` left out.
inline std::vector<unsigned int> allNumbers()
{
    std::vector<unsigned int> numbers;
    for (unsigned int number = 1; number <= FcBase::idLast; ++number)
        numbers.push_back(number);
    return numbers;
}

inline std::string classNameOf(testing::TestParamInfo<unsigned int> const& info)
{
    return entityClassFromNumber(info.param)->name;
}

/// A class at or below \p entityClass of which objects can be made; null when there is none.
inline EntityClass const* concreteClass(unsigned int first, unsigned int last)
{
    for (unsigned int number = first; number <= last; ++number) {
        if (!entityClassFromNumber(number)->isAbstract)
            return entityClassFromNumber(number);
    }
    return nullptr;
}

} // namespace qev::fc::test
