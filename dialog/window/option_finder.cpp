// SPDX-License-Identifier: MIT
#include "dialog/window/option_finder.h"

#include "dialog/window/hit_list.h"
#include "platform/toolkit/plain_text.h"

#include <QAbstractButton>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QListView>
#include <QVBoxLayout>

namespace halvern {

namespace {

// Of one turn of the event loop: a keystroke that comes meanwhile is not felt to wait.
constexpr qint64 kMillisecondsAtOnce = 5;

QString bareCaption(QString text)
{
    return text.remove(QLatin1Char('&')).remove(QLatin1Char(':')).trimmed();
}

// What a control is called on its page; empty for what is no control of its own.
QString nameOf(const QWidget* widget)
{
    if (const auto* label = qobject_cast<const QLabel*>(widget))
        return label->buddy() ? bareCaption(label->text()) : QString();
    const auto* button = qobject_cast<const QAbstractButton*>(widget);
    return button && button->isCheckable() ? bareCaption(button->text()) : QString();
}

} // namespace

OptionFinder::OptionFinder(DialogSession& session, std::function<QList<SearchPage>()> pages, QWidget* parent)
    : QWidget(parent),
      session_(session),
      pages_(std::move(pages)),
      field_(new QLineEdit(this)),
      results_(new QWidget(parent))
{
    field_->setObjectName(QStringLiteral("search"));
    field_->setClearButtonEnabled(true);
    field_->setPlaceholderText(tr("Search options and printers (Ctrl+F)"));
    field_->setAccessibleName(tr("Search options and printers"));
    field_->setMaxLength(200);
    field_->installEventFilter(this);
    auto* row = new QHBoxLayout(this);
    row->setContentsMargins(0, 0, 0, 0);
    row->addWidget(field_);
    makeResults();
    timer_.setSingleShot(true);
    timer_.setInterval(0);
    connect(&timer_, &QTimer::timeout, this, &OptionFinder::lookOn);
    connect(field_, &QLineEdit::textChanged, this, &OptionFinder::search);
    connect(list_, &QListView::clicked, this, &OptionFinder::go);
    connect(list_, &QListView::activated, this, &OptionFinder::go);
}

void OptionFinder::makeResults()
{
    count_ = new QLabel(results_);
    count_->setObjectName(QStringLiteral("searchCount"));
    list_ = new QListView(results_);
    list_->setObjectName(QStringLiteral("searchResults"));
    list_->setAccessibleName(tr("Found"));
    hits_ = new HitList(list_);
    list_->setModel(hits_);
    list_->setItemDelegate(new HitDelegate(list_));
    list_->setUniformItemSizes(true);
    list_->installEventFilter(this);
    auto* column = new QVBoxLayout(results_);
    column->setContentsMargins(0, 0, 0, 0);
    column->addWidget(count_);
    column->addWidget(list_, 1);
}

QString OptionFinder::printersPage()
{
    return QStringLiteral("printers");
}

QList<QWidget*> OptionFinder::tabOrder() const
{
    return {field_, list_};
}

void OptionFinder::start()
{
    field_->setFocus(Qt::ShortcutFocusReason);
    field_->selectAll();
}

void OptionFinder::stop()
{
    field_->clear();
}

void OptionFinder::searchAgain()
{
    search(field_->text());
}

void OptionFinder::search(const QString& typed)
{
    words_ = SearchWords(typed);
    timer_.stop();
    hits_->clear(words_);
    if (isSearching_ != !words_.isEmpty()) {
        isSearching_ = !words_.isEmpty();
        Q_EMIT searching(isSearching_);
    }
    if (!isSearching_)
        return;
    searched_ = pages_();
    page_ = option_ = 0;
    lookAtOthers();
    lookOn();
}

void OptionFinder::lookAtOthers()
{
    for (const SearchPage& page : std::as_const(searched_)) {
        if (page.view)
            lookAtControls(page);
    }
    for (const PrinterInfo& printer : session_.printerList().printers()) {
        std::optional<SearchHit> hit = findNamed({printer.name, printer.info}, words_);
        if (!hit)
            continue;
        hit->path = tr("Printers");
        hit->page = printersPage();
        hit->key = printer.name;
        hits_->add(*hit);
    }
}

void OptionFinder::lookAtControls(const SearchPage& page)
{
    for (const QWidget* widget : page.view->findChildren<QWidget*>()) {
        const bool isThere = widget->isVisibleTo(page.view) && widget->isEnabledTo(page.view);
        const QString name = isThere ? nameOf(widget) : QString();
        std::optional<SearchHit> hit = name.isEmpty() ? std::nullopt : findNamed({name}, words_);
        if (!hit)
            continue;
        hit->path = page.title;
        hit->page = page.identifier;
        hits_->add(*hit);
    }
}

void OptionFinder::lookOn()
{
    const PpdModel* model = session_.model();
    QElapsedTimer clock;
    clock.start();
    while (model && page_ < searched_.size() && !hits_->isFull() && clock.elapsed() < kMillisecondsAtOnce) {
        const SearchPage& page = searched_[page_];
        if (option_ >= page.keys.size()) {
            ++page_;
            option_ = 0;
            continue;
        }
        std::optional<SearchHit> hit = findOption(*model, page.keys[option_++], words_);
        if (!hit)
            continue;
        hit->path = hit->path.isEmpty() ? page.title : tr("%1 › %2").arg(page.title, hit->path);
        hit->page = page.identifier;
        hits_->add(*hit);
    }
    const bool isOver = !model || page_ >= searched_.size() || hits_->isFull();
    if (!isOver)
        timer_.start();
    if (!list_->currentIndex().isValid() || isOver)
        list_->setCurrentIndex(hits_->index(0));
    showCount();
}

void OptionFinder::showCount()
{
    const int count = hits_->rowCount();
    if (count == 0)
        setPlainText(count_, timer_.isActive() ? tr("Searching...") : tr("Nothing has this name."));
    else
        setPlainText(count_, hits_->isFull() ? tr("The first %1 that were found").arg(count)
                                             : tr("%1 found").arg(count));
}

void OptionFinder::go(const QModelIndex& index)
{
    if (!index.isValid())
        return;
    const SearchHit hit = hits_->hit(index.row());
    stop();
    Q_EMIT chosen(hit);
}

bool OptionFinder::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() != QEvent::KeyPress || !isSearching_)
        return QWidget::eventFilter(watched, event);
    const int key = static_cast<const QKeyEvent*>(event)->key();
    // The list has its own way with the others.
    if (watched == list_ && key != Qt::Key_Escape)
        return QWidget::eventFilter(watched, event);
    const int row = list_->currentIndex().row();
    switch (key) {
    case Qt::Key_Escape:
        field_->setFocus(Qt::OtherFocusReason);
        stop();
        return true;
    case Qt::Key_Return:
    case Qt::Key_Enter:
        go(list_->currentIndex());
        return true;
    case Qt::Key_Down:
        list_->setCurrentIndex(hits_->index(std::min(row + 1, hits_->rowCount() - 1)));
        return true;
    case Qt::Key_Up:
        list_->setCurrentIndex(hits_->index(std::max(row - 1, 0)));
        return true;
    default:
        return QWidget::eventFilter(watched, event);
    }
}

QWidget* findControl(QWidget& page, const QString& title)
{
    for (QWidget* widget : page.findChildren<QWidget*>()) {
        const auto* label = qobject_cast<const QLabel*>(widget);
        QWidget* const control = label ? label->buddy() : widget;
        if (control && control->isEnabled() && control->focusPolicy() != Qt::NoFocus &&
            (nameOf(widget) == title || control->accessibleName() == title))
            return control;
    }
    return nullptr;
}

} // namespace halvern
