#include "platform/printing/ppd.h"

#include "platform/printing/cups_ppd.h"

#include <QFile>

namespace halvern::ppd {

void Closer::operator()(ppd_file_t* file) const
{
    ppdClose(file);
}

File open(const QString& path, QString* why)
{
    File file(ppdOpenFile(QFile::encodeName(path).constData()));
    if (!file && why) {
        int line = 0;
        const ppd_status_t status = ppdLastError(&line);
        *why = QStringLiteral("%1 (line %2)").arg(QString::fromUtf8(ppdErrorString(status))).arg(line);
    }
    return file;
}

std::optional<QString> fetch(const QString& destination)
{
    const char* path = cupsGetPPD(destination.toUtf8().constData());
    if (!path)
        return std::nullopt;
    return QFile::decodeName(path);
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
