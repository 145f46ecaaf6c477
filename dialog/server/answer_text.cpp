// SPDX-License-Identifier: MIT
#include "dialog/server/answer_text.h"

#include "platform/foundation/display_text.h"

#include <cups/ipp.h>

#include <cstring>

namespace halvern {

namespace {

// More characters than these are not even looked at: a value may have 32 kB.
constexpr int kMostBytesPerCharacter = 4;

} // namespace

ipp_attribute_t* findAttribute(ipp_t* answer, const char* name, int tag)
{
    return answer ? ippFindAttribute(answer, name, ipp_tag_t(tag)) : nullptr;
}

QString stringAt(ipp_attribute_t* attribute, int place, int longest)
{
    if (!attribute || place < 0 || place >= ippGetCount(attribute))
        return {};
    const char* text = ippGetString(attribute, place, nullptr);
    if (!text)
        return {};
    const size_t length = strnlen(text, size_t(longest) * kMostBytesPerCharacter);
    return displayText(QString::fromUtf8(text, qsizetype(length)), longest);
}

int integerAt(ipp_attribute_t* attribute, int place, int least, int most, int otherwise)
{
    if (!attribute || place < 0 || place >= ippGetCount(attribute))
        return otherwise;
    const ipp_tag_t tag = ippGetValueTag(attribute);
    if (tag != IPP_TAG_INTEGER && tag != IPP_TAG_ENUM)
        return otherwise;
    const int value = ippGetInteger(attribute, place);
    return value < least || value > most ? otherwise : value;
}

} // namespace halvern
