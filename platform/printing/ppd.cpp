// SPDX-License-Identifier: MIT
#include "platform/printing/ppd.h"

#include "platform/printing/cups_ppd.h"
#include "platform/printing/fresh_ppd.h"

#include <QFile>
#include <QTemporaryFile>

#include <cerrno>
#include <charconv>
#include <cmath>
#include <cstring>
#include <new>

#include <sys/mman.h>
#include <unistd.h>

namespace halvern::ppd {

namespace {

File explained(ppd_file_t* file, QString* why)
{
    if (!file && why) {
        int line = 0;
        const ppd_status_t status = ppdLastError(&line);
        *why = QStringLiteral("%1 (line %2)").arg(QString::fromUtf8(ppdErrorString(status))).arg(line);
    }
    return File(file);
}

// The number that the PPD writes: libcups keeps 0.1 as a float, which is a little more than a double's 0.1.
double asWritten(float limit)
{
    char text[64];
    const std::to_chars_result end = std::to_chars(text, text + sizeof text, limit);
    return end.ec == std::errc() ? QByteArray(text, end.ptr - text).toDouble() : double(limit);
}

bool isNumber(const ppd_cparam_t& parameter)
{
    return parameter.type != PPD_CUSTOM_STRING && parameter.type != PPD_CUSTOM_PASSCODE &&
           parameter.type != PPD_CUSTOM_PASSWORD && parameter.type != PPD_CUSTOM_UNKNOWN;
}

} // namespace

void Closer::operator()(ppd_file_t* file) const
{
    ppdClose(file);
}

File open(const QString& path, QString* why)
{
    return explained(ppdOpenFile(QFile::encodeName(path).constData()), why);
}

namespace {

File parsed(const QByteArray& text, QString* why)
{
    if (isPacked(text)) {
        if (why)
            *why = QStringLiteral("gzip");
        return nullptr;
    }
    const int memory = memfd_create("ppd", MFD_CLOEXEC);
    QFile file;
    if (memory < 0 || !file.open(memory, QIODevice::WriteOnly) || file.write(text) != text.size() ||
        !file.flush() || lseek(memory, 0, SEEK_SET) != 0) {
        if (memory >= 0)
            close(memory);
        if (why)
            *why = QString::fromLocal8Bit(std::strerror(errno));
        return nullptr;
    }
    return explained(ppdOpenFd(memory), why); // closes it
}

} // namespace

File parse(const QByteArray& text, QString* why)
{
    try {
        return parsed(text, why);
    } catch (const std::bad_alloc&) {
        if (why)
            *why = QStringLiteral("not enough memory");
        return nullptr;
    }
}

bool isPacked(const QByteArray& text)
{
    return text.startsWith("\x1f\x8b");
}

std::optional<QString> fetch(const QString& destination)
{
    const std::optional<QByteArray> text = freshText(destination);
    if (!text)
        return std::nullopt;
    QTemporaryFile file;
    if (!file.open() || file.write(*text) != text->size() || !file.flush())
        return std::nullopt;
    file.setAutoRemove(false);
    return file.fileName();
}

std::optional<QString> attribute(ppd_file_t* file, const QString& keyword)
{
    if (!file)
        return std::nullopt;
    const ppd_attr_t* found = ppdFindAttr(file, keyword.toUtf8().constData(), nullptr);
    if (!found || !found->value)
        return std::nullopt;
    return QString::fromUtf8(found->value);
}

QByteArray attributeRun(ppd_file_t* file, const QString& keyword)
{
    QByteArray text;
    for (uint serial = 0;; ++serial) {
        const std::optional<QString> piece = attribute(file, keyword + QString::asprintf("%05x", serial));
        if (!piece || piece->isEmpty())
            return text;
        text += piece->toUtf8();
    }
}

std::optional<QString> defaultChoice(ppd_file_t* file, const QString& option)
{
    if (!file)
        return std::nullopt;
    const ppd_option_t* found = ppdFindOption(file, option.toUtf8().constData());
    if (!found)
        return std::nullopt;
    return QString::fromUtf8(found->defchoice);
}

std::optional<Choice> markedChoice(ppd_file_t* file, const QString& option)
{
    if (!file)
        return std::nullopt;
    const ppd_choice_t* found = ppdFindMarkedChoice(file, option.toUtf8().constData());
    if (!found)
        return std::nullopt;
    return Choice{QString::fromUtf8(found->choice), QString::fromUtf8(found->text)};
}

std::optional<QList<Choice>> choices(ppd_file_t* file, const QString& option)
{
    if (!file)
        return std::nullopt;
    const ppd_option_t* found = ppdFindOption(file, option.toUtf8().constData());
    if (!found)
        return std::nullopt;
    QList<Choice> result;
    for (int i = 0; i < found->num_choices; ++i)
        result.append(
            {QString::fromUtf8(found->choices[i].choice), QString::fromUtf8(found->choices[i].text)});
    return result;
}

Range parameterLimits(const ppd_cparam_t& parameter)
{
    switch (parameter.type) {
    case PPD_CUSTOM_REAL:
    case PPD_CUSTOM_POINTS:
    case PPD_CUSTOM_CURVE:
    case PPD_CUSTOM_INVCURVE:
        // One member of the union or another: all of these are floats.
        return {asWritten(parameter.minimum.custom_real), asWritten(parameter.maximum.custom_real)};
    default:
        // And all of the others whole numbers.
        return {double(parameter.minimum.custom_int), double(parameter.maximum.custom_int), true};
    }
}

std::optional<Range> customRange(ppd_file_t* file, const QString& option)
{
    const ppd_coption_t* custom = file ? ppdFindCustomOption(file, option.toUtf8().constData()) : nullptr;
    if (!custom || cupsArrayCount(custom->params) != 1)
        return std::nullopt;
    const auto* parameter = static_cast<const ppd_cparam_t*>(cupsArrayIndex(custom->params, 0));
    if (!isNumber(*parameter))
        return std::nullopt;
    const Range range = parameterLimits(*parameter);
    const bool usable =
        std::isfinite(range.minimum) && std::isfinite(range.maximum) && range.minimum < range.maximum;
    return usable ? std::optional(range) : std::nullopt;
}

void markDefaults(ppd_file_t* file)
{
    ppdMarkDefaults(file);
}

bool mark(ppd_file_t* file, const QString& option, const QString& choice)
{
    // libcups ignores what it does not know without a word.
    ppd_option_t* found = ppdFindOption(file, option.toUtf8().constData());
    if (!found || !ppdFindChoice(found, choice.toUtf8().constData()))
        return false;
    ppdMarkOption(file, option.toUtf8().constData(), choice.toUtf8().constData());
    return true;
}

std::optional<QByteArray> decodeBase64(const QByteArray& text)
{
    QByteArray bytes(text.size(), '\0');
    int length = int(text.size());
    if (!httpDecode64_2(bytes.data(), &length, text.constData()) || length == 0)
        return std::nullopt;
    bytes.resize(length);
    return bytes;
}

} // namespace halvern::ppd
