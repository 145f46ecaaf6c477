// SPDX-License-Identifier: MIT
#include "dialog/window/translations.h"

#include <QCoreApplication>
#include <QLibraryInfo>
#include <QLocale>

// A resource in a static library has to be asked for, outside any namespace.
static void initTranslations()
{
    Q_INIT_RESOURCE(dialog_translations);
}

namespace halvern {

namespace {

const QString kCatalogue = QStringLiteral("dialog");
const QString kFolder = QStringLiteral(":/halvern/translations");
const QString kBeforeLanguage = QStringLiteral("_");

// A window shows one sort of digits. The printer's texts, its pages' fields and what is typed on the command
// line have 0 to 9; a language that is also written with these elsewhere takes that country's numbers and
// dates.
void useOneSortOfDigits()
{
    const QLocale own;
    const QString zero = QStringLiteral("0");
    if (own.zeroDigit() == zero)
        return;
    for (const QLocale& sister :
         QLocale::matchingLocales(own.language(), own.script(), QLocale::AnyTerritory)) {
        if (sister.zeroDigit() == zero && sister.decimalPoint() == QStringLiteral(".")) {
            QLocale::setDefault(sister);
            return;
        }
    }
}

} // namespace

QList<std::shared_ptr<QTranslator>> installTranslations()
{
    initTranslations();
    useOneSortOfDigits();
    QList<std::shared_ptr<QTranslator>> translators;
    const auto add = [&](const QString& name, const QString& folder) {
        auto translator = std::make_shared<QTranslator>();
        if (translator->load(QLocale(), name, kBeforeLanguage, folder) &&
            QCoreApplication::installTranslator(translator.get()))
            translators.append(translator);
    };
    add(QStringLiteral("qtbase"), QLibraryInfo::path(QLibraryInfo::TranslationsPath));
    add(kCatalogue, kFolder);
    return translators;
}

QString translatedEarly(const char* context, const char* text)
{
    initTranslations();
    QTranslator translator;
    QString found;
    if (translator.load(QLocale(), kCatalogue, kBeforeLanguage, kFolder))
        found = translator.translate(context, text);
    return found.isEmpty() ? QString::fromUtf8(text) : found;
}

} // namespace halvern
