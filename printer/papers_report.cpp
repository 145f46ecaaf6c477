// SPDX-License-Identifier: MIT
#include "printer/papers_report.h"

#include "printer/papers/catalogue_archive.h"
#include "printer/papers/paper_list.h"
#include "printer/papers/ppd_catalogue.h"

namespace halvern {

namespace {

// The dialog counts from the beginning of 2001 (UTC).
constexpr double kReferenceDate = 978'307'200.0;

} // namespace

ReportResult papersReport(const QByteArray& list, double now, bool garbled)
{
    const PaperListResult papers = readPaperList(list);
    if (!papers.list)
        return {{}, papers.failure};
    QList<PpdAttribute> attributes = attributesOf(*papers.list);
    if (garbled) {
        const QByteArray archive = archiveOfCatalogue(papers.list->records);
        attributes = runOf(archive.first(archive.size() / 2));
    }
    attributes.append({"VLXTimeStamp", QByteArray::number(now - kReferenceDate, 'f', 3)});
    return {filterLines(attributes), QString()};
}

} // namespace halvern
