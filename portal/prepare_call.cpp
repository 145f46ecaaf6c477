// SPDX-License-Identifier: MIT
#include "portal/prepare_call.h"

#include "dialog/options/common_words.h"
#include "dialog/window/print_dialog.h"

namespace halvern {

namespace {

// The toolkits write "_" before the key.
QString withKey(const QString& label)
{
    return QString(label)
        .replace(QLatin1Char('&'), QLatin1String("&&"))
        .replace(QLatin1Char('_'), QLatin1Char('&'));
}

// The dialog that shows the document when it has come, with what was accepted before.
SessionRequest reviewOf(const DialogSession& session, const JobRequest& order, const QString& giver)
{
    SessionRequest review;
    review.printer = order.queue;
    review.copies = session.page().copies;
    review.namesCopies = true;
    review.isCollated = session.page().isCollated;
    review.pages.isReversed = session.page().pages.isReversed;
    // It was made for the sheet.
    review.scaling = Scaling::actualSize;
    review.handed = HandedOptions{giver, order.queue, {}, {}, {}, {}};
    for (const OptionValue& option : order.options) {
        if (isJobAttribute(option.key))
            review.options.append(option);
        else if (session.valuesToSend().contains(option.key))
            review.handed->printersOptions.append(option);
    }
    return review;
}

} // namespace

PrepareCall::PrepareCall(PortalRoom room, CallDetails details, ApplicationSettings settings,
                         const QDBusMessage& message)
    : PortalCall(room, std::move(details), message), settings_(std::move(settings))
{
}

PrepareCall::~PrepareCall()
{
    if (dialog_)
        disconnect(dialog_.get(), nullptr, this, nullptr);
}

void PrepareCall::start()
{
    SessionRequest request;
    settings_.applyTo(request, applicationsName());
    request.document = BlindDocument{false, applicationsName(), withKey(text("accept_label")),
                                     isSet("has_current_page"), isSet("has_selected_pages")};
    settings_.applyMargins(*request.document);
    // Remembered from a document that had them.
    PageParity& parity = request.pages.parity;
    if ((parity == PageParity::current && !isSet("has_current_page")) ||
        (parity == PageParity::selection && !isSet("has_selected_pages")))
        parity = PageParity::all;
    session_ = std::make_unique<DialogSession>(request, room_.panels);
    dialog_ = std::make_unique<PrintDialog>(*session_);
    connect(dialog_.get(), &QDialog::finished, this, &PrepareCall::takeEnd);
    showDialog(*dialog_);
    session_->start();
}

void PrepareCall::takeEnd()
{
    const std::optional<JobRequest>& order = dialog_->order();
    if (!order) {
        answer(PortalResponse::cancelled);
        Q_EMIT over();
        return;
    }
    const AcceptedJob job = accepted();
    PreparedJob prepared{details_.application, *order, reviewOf(*session_, *order, applicationsName()),
                         session_->model()->sheet(), session_->resolution()};
    answer(PortalResponse::done, {{QStringLiteral("settings"), settings_.settingsFor(job)},
                                  {QStringLiteral("page-setup"), settings_.pageSetupFor(job)},
                                  {QStringLiteral("token"), room_.tokens.keep(std::move(prepared))}});
    Q_EMIT over();
}

AcceptedJob PrepareCall::accepted() const
{
    const PageSettings& page = session_->page();
    PpdModel& model = *session_->model();
    AcceptedJob job{session_->printerName(), session_->usedNow({.backText = true}).options, page.copies,
                    page.pages, page.scalePercent};
    job.sheet = session_->sheet();
    job.margins = session_->documentMargins();
    job.pageSize = model.value(QStringLiteral("PageSize"));
    job.pageText = model.choiceText(QStringLiteral("PageSize"), job.pageSize);
    job.sides = session_->isTwoSided() ? sidesWord(model.value(duplexOption(model.file())))
                                       : QStringLiteral("one-sided");
    job.resolution = session_->resolution();
    job.fileFormat = fileFormat();
    const QMap<QString, QString> values = model.values();
    const auto word = [&](const char* attribute) {
        return wordForChoice(model.file(), QLatin1StringView(attribute), values);
    };
    job.colourMode = word("print-color-mode");
    job.quality = word("print-quality");
    job.mediaType = word("media-type");
    job.mediaSource = word("media-source");
    return job;
}

// Only where the application asks; nothing if it can make none that we can print.
QString PrepareCall::fileFormat() const
{
    const QStringList offered =
        details_.options.value(QStringLiteral("supported_output_file_formats")).toStringList();
    for (const QString& known : {QStringLiteral("pdf"), QStringLiteral("ps")}) {
        if (offered.contains(known))
            return known;
    }
    return {};
}

} // namespace halvern
