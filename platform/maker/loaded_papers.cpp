// SPDX-License-Identifier: MIT
#include "platform/maker/loaded_papers.h"

#include "platform/foundation/archive/keyed_unarchiver.h"
#include "platform/maker/paper_index.h"
#include "platform/maker/refresh_date.h"
#include "platform/maker/tone_mask.h"
#include "platform/printing/ppd.h"

namespace halvern {

namespace {

constexpr int kMostTones = 9;

class Grouping {
public:
    void add(const PaperRecord& record)
    {
        if (!record.sheetName && !record.widthCode)
            return;
        const QString key =
            QStringList{record.sheetName.value_or(QString()),
                        record.sheetName ? QString() : *record.widthCode,
                        record.surfaceCode.value_or(QString()), QString::number(quint8(record.tones))}
                .join(QChar::LineSeparator);
        const auto known = places_.constFind(key);
        LoadedPaper& paper = known != places_.constEnd() ? papers[*known] : newPaper(key, record);
        if (!paper.dotsPerInch.contains(record.dotsPerInch))
            paper.dotsPerInch.append(record.dotsPerInch);
    }

    QList<LoadedPaper> papers;

private:
    LoadedPaper& newPaper(const QString& key, const PaperRecord& record)
    {
        LoadedPaper paper;
        paper.sheetName = record.sheetName.value_or(QString());
        if (!record.sheetName)
            paper.width = paperWidthTitle(*record.widthCode).value_or(QString());
        paper.widthCode = record.widthCode.value_or(QString());
        paper.surface = record.surfaceCode.value_or(QString());
        for (int i = 0; i < kMostTones; ++i) {
            if (tone::allowsItem(record.tones, i))
                paper.tones.append(i);
        }
        places_.insert(key, papers.size());
        papers.append(paper);
        return papers.last();
    }

    QHash<QString, qsizetype> places_;
};

} // namespace

LoadedPapers readLoadedPapers(ppd_file_t* file)
{
    LoadedPapers loaded;
    if (const auto stamp = ppd::attribute(file, QStringLiteral("VLXTimeStamp")))
        loaded.lastUpdate = dateOfTimeStamp(*stamp);
    const QByteArray run = ppd::attributeRun(file, QStringLiteral("VLXPapersKnown"));
    if (run.isEmpty())
        return loaded;
    const std::optional<QByteArray> data = ppd::decodeBase64(run);
    if (!data) {
        loaded.corrupt = QStringLiteral("corrupt: it is not base64");
        return loaded;
    }
    const KeyedUnarchiver::Result result = KeyedUnarchiver::unarchiveDictionary(*data);
    loaded.corrupt = result.failure;
    if (!result.root)
        return loaded;
    Grouping grouping;
    for (const QString& key : sortedPaperKeys(*result.root))
        grouping.add(readPaperRecord(*result.root->constFind(key)));
    loaded.papers = std::move(grouping.papers);
    return loaded;
}

} // namespace halvern
