#include "Core/String/Compare.h"

#include <memory>
#include <unicode/coll.h>
#include <unicode/locid.h>
#include <unicode/stringpiece.h>
#include <unicode/unistr.h>

namespace qev::str::details {

namespace {

/// Made on first use, and only read from then on. Null when the tables of the collation library
/// cannot be found.
icu::Collator const* collator(CaseLevel level)
{
    auto const make = [](icu::Collator::ECollationStrength strength) -> std::unique_ptr<icu::Collator> {
        UErrorCode status = U_ZERO_ERROR;
        std::unique_ptr<icu::Collator> result(icu::Collator::createInstance(icu::Locale::getRoot(), status));
        if (U_FAILURE(status))
            return nullptr;
        result->setStrength(strength);
        result->setAttribute(UCOL_NUMERIC_COLLATION, UCOL_ON, status);
        return U_FAILURE(status) ? nullptr : std::move(result);
    };
    static std::unique_ptr<icu::Collator> const counted = make(icu::Collator::TERTIARY);
    static std::unique_ptr<icu::Collator> const ignored = make(icu::Collator::SECONDARY);
    return level == CaseLevel::Counted ? counted.get() : ignored.get();
}

int sign(int value) { return (value > 0) - (value < 0); }

icu::StringPiece piece(std::string_view text) { return {text.data(), static_cast<int32_t>(text.size())}; }

} // namespace

template <>
int compare<char>(std::string_view left, std::string_view right, CaseLevel level)
{
    int const bytes = sign(left.compare(right));
    if (bytes == 0)
        return 0;
    auto const* const order = collator(level);
    if (!order)
        return bytes;
    UErrorCode status = U_ZERO_ERROR;
    int const result = order->compareUTF8(piece(left), piece(right), status);
    if (U_FAILURE(status))
        return bytes;
    if (result == 0 && level == CaseLevel::Counted)
        return bytes;
    return result;
}

std::string sortKey(std::string_view text, CaseLevel level)
{
    auto const* const order = collator(level);
    if (!order)
        return std::string(text);
    auto const unicode = icu::UnicodeString::fromUTF8(piece(text));
    // Enough for most texts; the key says how much it needs in any case.
    std::string key(3 * text.size() + 16, '\0');
    auto const fill = [&] {
        return static_cast<std::size_t>(order->getSortKey(unicode, reinterpret_cast<uint8_t*>(key.data()),
                                                          static_cast<int32_t>(key.size())));
    };
    auto const needed = fill();
    bool const isCut = needed > key.size();
    key.resize(needed);
    if (isCut)
        fill();
    // As in a comparison, the bytes decide where nothing else does.
    if (level == CaseLevel::Counted)
        key += text;
    return key;
}

} // namespace qev::str::details
