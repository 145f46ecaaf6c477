// SPDX-License-Identifier: MIT
#include "dialog/job/ipp_options.h"

#include "platform/printing/cups_ppd.h"

#include <QCoreApplication>

#include <algorithm>
#include <array>

namespace halvern {

namespace {

// What IPP limits a name and a text to.
constexpr qsizetype kLongestName = 255;
constexpr qsizetype kLongestValue = 1023;

// Attributes that the server itself reads, and that need their IPP type.
constexpr std::array kServerAttributes{
    "copies",
    "job-priority",
    "job-hold-until",
    "job-sheets",
    "job-billing",
    "page-ranges",
    "output-bin",
    "finishings",
    "print-scaling",
    "multiple-document-handling",
    "print-quality",
    "media",
    "media-col",
    "printer-resolution",
    "print-content-optimize",
    "print-rendering-intent",
    "sides",
    "print-color-mode",
    "number-up",
    "page-set",
    "orientation-requested",
    "landscape",
    "mirror",
};

bool isServerAttribute(const QString& name)
{
    return std::ranges::any_of(kServerAttributes,
                               [&](const char* known) { return name == QLatin1StringView(known); });
}

bool isKeyword(const char* text)
{
    const QByteArrayView letters(text);
    return std::ranges::all_of(letters, [](char letter) {
        return (letter >= 'a' && letter <= 'z') || (letter >= 'A' && letter <= 'Z') ||
               (letter >= '0' && letter <= '9') || QByteArrayView("-_.+").contains(letter);
    });
}

// "My canvas, 340 g": the library takes it for a keyword like all others of the attribute.
void callNamesNames(ipp_t* attributes, ipp_attribute_t* attribute)
{
    if (ippGetValueTag(attribute) == IPP_TAG_BEGIN_COLLECTION) {
        ipp_t* members = ippGetCollection(attribute, 0);
        for (ipp_attribute_t* a = ippFirstAttribute(members); a; a = ippNextAttribute(members))
            callNamesNames(members, a);
    } else if (ippGetValueTag(attribute) == IPP_TAG_KEYWORD &&
               !isKeyword(ippGetString(attribute, 0, nullptr)))
        ippSetValueTag(attributes, &attribute, IPP_TAG_NAME);
}

} // namespace

QString addJobOption(_ipp_s* request, const OptionValue& option, Collections collections)
{
    const QByteArray name = option.key.toUtf8();
    const QByteArray value = option.value.toUtf8();
    if (name.size() > kLongestName || value.size() > kLongestValue || value.contains('\0')) {
        return QCoreApplication::translate("IppOptions",
                                           "The value of %1 is too long to send: it has %2 bytes, and %3 "
                                           "are possible. Shorten it.")
            .arg(option.key)
            .arg(value.size())
            .arg(kLongestValue);
    }
    const bool isText = collections == Collections::asText && option.value.startsWith(QLatin1Char('{'));
    if (isServerAttribute(option.key) && !isText) {
        // It splits lists at commas and knows the attributes' types.
        if (ipp_attribute_t* added =
                cupsEncodeOption(request, IPP_TAG_JOB, name.constData(), value.constData()))
            callNamesNames(request, added);
        return {};
    }
    const ipp_tag_t tag = value.size() > kLongestName ? IPP_TAG_TEXT : IPP_TAG_NAME;
    ippAddString(request, IPP_TAG_JOB, tag, name.constData(), nullptr, value.constData());
    return {};
}

} // namespace halvern
