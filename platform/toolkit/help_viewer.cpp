// SPDX-License-Identifier: MIT
#include "platform/toolkit/help_viewer.h"

#include "platform/foundation/bundle.h"

#include <QDesktopServices>
#include <QLocale>
#include <QUrl>

namespace halvern {

namespace {

constexpr int kHelpBookMissing = 1;
constexpr int kHelpViewerFailed = 2;

std::optional<QString> startPage(const Bundle& bundle, const QString& bookName)
{
    QStringList candidates;
    const QStringList languages = QLocale().uiLanguages();
    for (const QString& language : languages)
        candidates << bookName +
                          QStringLiteral("/index.%1.html").arg(language.section(QLatin1Char('-'), 0, 0));
    candidates << bookName + QStringLiteral("/index.html");
    for (const QString& candidate : std::as_const(candidates)) {
        if (auto path = bundle.pathForResource(candidate))
            return path;
    }
    return std::nullopt;
}

} // namespace

int gotoHelpPage(const Bundle& bundle, const QString& bookName)
{
    const auto page = startPage(bundle, bookName);
    if (!page)
        return kHelpBookMissing;
    return QDesktopServices::openUrl(QUrl::fromLocalFile(*page)) ? 0 : kHelpViewerFailed;
}

} // namespace halvern
