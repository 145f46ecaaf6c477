// SPDX-License-Identifier: MIT
#include "dialog/window/printer_page.h"

#include "dialog/window/supply_bars.h"
#include "platform/foundation/list_text.h"
#include "platform/toolkit/plain_text.h"

#include <QFormLayout>
#include <QLabel>
#include <QLocale>

#include <algorithm>

namespace halvern {

namespace {

// The worst first, each once.
QString adviceText(const QStringList& reasons)
{
    QStringList sorted = reasons;
    std::ranges::stable_sort(
        sorted, [](const QString& a, const QString& b) { return severityOf(a) > severityOf(b); });
    QStringList advice;
    for (const QString& reason : std::as_const(sorted)) {
        const QString text = reasonAdvice(reason);
        if (!text.isEmpty() && !advice.contains(text))
            advice.append(text);
    }
    return advice.join(QLatin1Char(' '));
}

QString sinceText(const QDateTime& since)
{
    const QLocale locale;
    return since.date() == QDate::currentDate() ? locale.toString(since.time(), QLocale::ShortFormat)
                                                : locale.toString(since, QLocale::ShortFormat);
}

} // namespace

PrinterPage::PrinterPage(DialogSession& session, QWidget* parent)
    : QWidget(parent), session_(session), form_(new QFormLayout(this))
{
    setObjectName(QStringLiteral("printerPage"));
    form_->setFieldGrowthPolicy(QFormLayout::AllNonFixedFieldsGrow);
    form_->setRowWrapPolicy(QFormLayout::DontWrapRows);
    form_->setVerticalSpacing(14);
    form_->setHorizontalSpacing(14);
    state_ = addLabel(QStringLiteral("reportState"), tr("State:"));
    advice_ = addLabel(QStringLiteral("reportAdvice"), tr("What to do:"));
    since_ = addLabel(QStringLiteral("reportSince"), tr("Since:"));
    jobs_ = addLabel(QStringLiteral("reportJobs"), tr("Jobs ahead:"));
    members_ = addLabel(QStringLiteral("reportMembers"), tr("Printers in it:"));
    supplies_ = new SupplyBars(this);
    form_->addRow(new QLabel(tr("Supplies:"), this), supplies_);
    note_ = addLabel(QStringLiteral("reportNote"), QString());
    connect(&session_, &DialogSession::reportChanged, this, &PrinterPage::refresh);
    connect(&session_, &DialogSession::printerSelected, this, &PrinterPage::refresh);
    connect(&session_.printerList(), &PrinterList::changed, this, &PrinterPage::refresh);
    refresh();
}

QLabel* PrinterPage::addLabel(const QString& name, const QString& title)
{
    auto* label = new QLabel(this);
    label->setObjectName(name);
    label->setWordWrap(true);
    label->setTextInteractionFlags(Qt::TextSelectableByMouse);
    auto* caption = new QLabel(this);
    setPlainText(caption, title);
    form_->addRow(caption, label);
    return label;
}

void PrinterPage::show(QLabel* label, const QString& text)
{
    setPlainText(label, text, kLongestText);
    form_->setRowVisible(label, !text.isEmpty());
}

QString PrinterPage::membersText(const QStringList& members) const
{
    QStringList texts;
    for (const QString& name : members) {
        const PrinterInfo* printer = session_.printerList().find(name);
        texts.append(tr("%1 (%2)").arg(isolated(name), printer ? isolated(stateText(*printer))
                                                               : tr("not on the print server")));
    }
    return listText(texts);
}

void PrinterPage::refresh()
{
    const PrinterReport& report = session_.report();
    const PrinterInfo* known = session_.printerList().find(session_.printerName());
    const PrinterInfo printer = withReport(known ? *known : PrinterInfo(), report);
    show(state_, known ? stateText(printer) : tr("Nothing is known of it yet."));
    show(advice_, adviceText(printer.reasons));
    show(since_, report.since ? sinceText(*report.since) : QString());
    show(jobs_, report.isThere ? (report.jobs > 0 ? QString::number(report.jobs) : tr("none")) : QString());
    show(members_, membersText(report.members));
    supplies_->setSupplies(report.supplies);
    form_->setRowVisible(supplies_, !report.supplies.isEmpty());
    QString note = report.problem;
    if (note.isEmpty() && report.isCut)
        note = tr("The printer tells more of itself than can be shown here.");
    if (note.isEmpty() && report.isThere && report.supplies.isEmpty())
        note = tr("The printer does not say what is left of its ink or toner.");
    show(note_, note);
}

} // namespace halvern
