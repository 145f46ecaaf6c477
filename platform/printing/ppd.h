// SPDX-License-Identifier: MIT
#pragma once

#include "platform/foundation/export.h"

#include <QByteArray>
#include <QList>
#include <QString>

#include <memory>
#include <optional>

struct ppd_cparam_s;
struct ppd_file_s;
using ppd_file_t = ppd_file_s;

/// Reading PPD files through libcups. A handle belongs to one thread at a time; different threads use
/// different handles. All texts are UTF-8 in the file and QString here. Keywords that are not ASCII are never
/// found.
namespace HALVERN_EXPORT halvern {
namespace ppd {

struct Closer {
    void operator()(ppd_file_t* file) const;
};

/// An open PPD, closed by its owner.
using File = std::unique_ptr<ppd_file_t, Closer>;

/// Opens a PPD, null if it cannot be read or parsed. No choice is marked. `why`, if given, is filled with
/// libcups's reason and the line number.
File open(const QString& path, QString* why = nullptr);

/// Whether a text is packed: libcups would unpack it, to whatever size.
bool isPacked(const QByteArray& text);

/// The same from the text of a PPD, which is not packed.
File parse(const QByteArray& text, QString* why = nullptr);

/// cupsGetPPD: the queue's PPD as the server has it now (freshText() in fresh_ppd.h), written to a temporary
/// file whose path is the answer, and which the caller removes; nothing if it cannot be had.
std::optional<QString> fetch(const QString& destination);

/// The value of the first attribute with the keyword, whatever option keyword follows it; nothing if there is
/// none or it has no value. `file` may be null.
std::optional<QString> attribute(ppd_file_t* file, const QString& keyword);

/// The values of a run of attributes, joined: KEYWORD00000, KEYWORD00001 and so on in five hexadecimal
/// digits, up to the first that is missing or empty. `file` may be null.
QByteArray attributeRun(ppd_file_t* file, const QString& keyword);

struct Choice {
    QString keyword;
    QString text;
};

/// The option's default choice keyword; nothing if `file` is null or has no such option.
std::optional<QString> defaultChoice(ppd_file_t* file, const QString& option);

/// The choice marked for the option; nothing if there is none.
std::optional<Choice> markedChoice(ppd_file_t* file, const QString& option);

/// The option's choices in the PPD's order; nothing if there is no such option.
std::optional<QList<Choice>> choices(ppd_file_t* file, const QString& option);

/// The limits of a number, themselves included; the minimum is less than the maximum.
struct Range {
    double minimum;
    double maximum;
    bool isWhole = false; ///< whether the PPD asks for a whole number
};

/// The limits of a custom value's parameter, themselves included: of numbers as the PPD writes them, of texts
/// their lengths.
Range parameterLimits(const ppd_cparam_s& parameter);

/// The limits of the option's custom value; nothing if the PPD gives the option none, one that is not a
/// single number, or limits that leave no choice. `file` may be null.
std::optional<Range> customRange(ppd_file_t* file, const QString& option);

/// Marks every option's default.
void markDefaults(ppd_file_t* file);

/// Marks a listed choice. False, with nothing marked, if the PPD has no such option or choice.
bool mark(ppd_file_t* file, const QString& option, const QString& choice);

/// httpDecode64_2 on the text: nothing if decoding fails or yields no byte.
std::optional<QByteArray> decodeBase64(const QByteArray& text);

} // namespace ppd
} // namespace halvern
