// SPDX-License-Identifier: MIT
#include "dialog/window/help_window.h"

#include "dialog/window/hit_list.h"
#include "platform/toolkit/plain_text.h"

#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLineEdit>
#include <QListView>
#include <QListWidget>
#include <QScreen>
#include <QShortcut>
#include <QStackedLayout>
#include <QStyle>
#include <QTextBlock>
#include <QTextBrowser>
#include <QToolButton>
#include <QUrl>
#include <QVBoxLayout>

#include <algorithm>

namespace halvern {

namespace {

// The book's pictures are 560 wide, and are seen whole.
constexpr QSize kHelpSize(960, 700);
constexpr int kListWidth = 250;
constexpr int kPageMargin = 18;
// Of a line, what stands before the first word that was found.
constexpr int kLettersBefore = 24;

// The part of a line that begins shortly before the first word.
QString excerpt(const QString& line, const SearchWords& words)
{
    int first = int(line.size());
    for (const auto& [from, length] : words.placesIn(line))
        first = std::min(first, from);
    if (first == line.size() || first <= kLettersBefore)
        return line;
    const qsizetype blank = line.indexOf(QLatin1Char(' '), first - kLettersBefore);
    const qsizetype start = blank < 0 || blank >= first ? first : blank + 1;
    return QStringLiteral("… ") + line.mid(start);
}

QToolButton* makeStepButton(QWidget* parent, QStyle::StandardPixmap icon, const QString& name,
                            const QKeySequence& keys)
{
    auto* button = new QToolButton(parent);
    button->setIcon(button->style()->standardIcon(icon, nullptr, button));
    setPlainName(button, name);
    setPlainToolTip(button, HelpWindow::tr("%1 (%2)").arg(name, keys.toString(QKeySequence::NativeText)));
    button->setShortcut(keys);
    button->setMinimumSize(30, 30);
    return button;
}

} // namespace

HelpWindow::HelpWindow(HelpBook book, QWidget* parent)
    : QDialog(parent),
      book_(std::move(book)),
      field_(new QLineEdit(this)),
      contents_(new QListWidget(this)),
      found_(new QListView(this)),
      hits_(new HitList(this)),
      page_(new QTextBrowser(this))
{
    setObjectName(QStringLiteral("helpWindow"));
    setWindowTitle(tr("Help"));
    setWindowFlag(Qt::WindowMaximizeButtonHint);
    page_->setObjectName(QStringLiteral("helpPage"));
    page_->setAccessibleName(tr("Page of the help"));
    page_->setFrameShape(QFrame::NoFrame);
    page_->document()->setDocumentMargin(kPageMargin);
    // Many dark palettes leave links as dark as on white.
    if (palette().color(QPalette::Base).lightness() < 128)
        page_->document()->setDefaultStyleSheet(QStringLiteral("a { color: #8ab8ff; }"));
    // Links are reached by the Tab key, and text can be marked by the keyboard.
    page_->setTextInteractionFlags(Qt::TextBrowserInteraction | Qt::TextSelectableByKeyboard);
    auto* sides = new QHBoxLayout(this);
    sides->addWidget(makeContents());
    sides->addWidget(page_, 1);
    connect(page_, &QTextBrowser::sourceChanged, this, &HelpWindow::takeShownPage);
    connect(page_, &QTextBrowser::backwardAvailable, back_, &QWidget::setEnabled);
    connect(page_, &QTextBrowser::forwardAvailable, forward_, &QWidget::setEnabled);
    makeKeys();
    resize(kHelpSize.boundedTo(screen()->availableSize()));
}

QWidget* HelpWindow::makeContents()
{
    auto* side = new QWidget(this);
    side->setFixedWidth(kListWidth);
    field_->setObjectName(QStringLiteral("helpSearch"));
    field_->setPlaceholderText(
        tr("Search the help (%1)").arg(QKeySequence(QKeySequence::Find).toString(QKeySequence::NativeText)));
    field_->setAccessibleName(tr("Search the help"));
    field_->setClearButtonEnabled(true);
    field_->installEventFilter(this);
    connect(field_, &QLineEdit::textChanged, this, &HelpWindow::search);
    contents_->setObjectName(QStringLiteral("helpContents"));
    contents_->setAccessibleName(tr("Contents"));
    for (const HelpPage& page : book_.pages())
        contents_->addItem(page.title);
    connect(contents_, &QListWidget::currentRowChanged, this, &HelpWindow::showPage);
    found_->setObjectName(QStringLiteral("helpFound"));
    found_->setAccessibleName(tr("Found"));
    found_->setModel(hits_);
    found_->setItemDelegate(new HitDelegate(found_));
    found_->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    // A click and Return go there, whatever the desktop's way of activating things is.
    connect(found_, &QListView::clicked, this, [this](const QModelIndex& index) { go(index.row()); });
    found_->installEventFilter(this);
    auto* lists = new QWidget(side);
    lists_ = new QStackedLayout(lists);
    lists_->addWidget(contents_);
    lists_->addWidget(found_);
    auto* column = new QVBoxLayout(side);
    column->setContentsMargins(0, 0, 0, 0);
    column->addLayout(makeButtons());
    column->addWidget(field_);
    column->addWidget(lists, 1);
    return side;
}

QLayout* HelpWindow::makeButtons()
{
    // Back is to the right where one reads from there.
    const bool isMirrored = layoutDirection() == Qt::RightToLeft;
    const QStyle::StandardPixmap before = isMirrored ? QStyle::SP_ArrowRight : QStyle::SP_ArrowLeft;
    const QStyle::StandardPixmap after = isMirrored ? QStyle::SP_ArrowLeft : QStyle::SP_ArrowRight;
    back_ = makeStepButton(this, before, tr("Back"), Qt::ALT | (isMirrored ? Qt::Key_Right : Qt::Key_Left));
    back_->setObjectName(QStringLiteral("helpBack"));
    forward_ =
        makeStepButton(this, after, tr("Forward"), Qt::ALT | (isMirrored ? Qt::Key_Left : Qt::Key_Right));
    forward_->setObjectName(QStringLiteral("helpForward"));
    for (QToolButton* button : {back_, forward_})
        button->setEnabled(false);
    connect(back_, &QToolButton::clicked, page_, &QTextBrowser::backward);
    connect(forward_, &QToolButton::clicked, page_, &QTextBrowser::forward);
    auto* row = new QHBoxLayout;
    row->addWidget(back_);
    row->addWidget(forward_);
    row->addStretch();
    return row;
}

void HelpWindow::makeKeys()
{
    connect(new QShortcut(QKeySequence::Find, this), &QShortcut::activated, this, [this] {
        field_->setFocus(Qt::ShortcutFocusReason);
        field_->selectAll();
    });
    connect(new QShortcut(QKeySequence::Close, this), &QShortcut::activated, this, &QWidget::close);
}

void HelpWindow::search(const QString& typed)
{
    const SearchWords words(typed);
    hits_->clear(words);
    int rank = 0;
    for (const HelpHit& hit : book_.find(words)) {
        const HelpPage& page = book_.pages()[hit.page];
        hits_->add({excerpt(hit.line, words), {}, page.title, page.name, hit.line, rank++});
    }
    // "Nothing" is an empty list, read aloud by its name.
    setPlainDescription(found_, tr("%1 found").arg(hits_->rowCount()));
    lists_->setCurrentWidget(words.isEmpty() ? static_cast<QWidget*>(contents_) : found_);
}

void HelpWindow::go(int row)
{
    if (row < 0 || row >= hits_->rowCount())
        return;
    const SearchHit hit = hits_->hit(row);
    const auto isIt = [&](const HelpPage& page) { return page.name == hit.page; };
    showPage(std::ranges::find_if(book_.pages(), isIt) - book_.pages().begin());
    page_->moveCursor(QTextCursor::Start);
    // The line as it stands in the page, marked, so that the eye finds it.
    QTextBlock block = page_->document()->begin();
    while (block.isValid() && !block.text().contains(hit.key))
        block = block.next();
    if (block.isValid()) {
        QTextCursor line(block);
        line.movePosition(QTextCursor::EndOfBlock, QTextCursor::KeepAnchor);
        page_->setTextCursor(line);
        page_->ensureCursorVisible();
    }
}

void HelpWindow::showPage(qsizetype page)
{
    if (page < 0 || page >= book_.pages().size())
        return;
    const QUrl url = QUrl::fromLocalFile(book_.pages()[page].path);
    if (page_->source() != url)
        page_->setSource(url);
}

// After a link or a step back, too. A page of another language is none of these.
void HelpWindow::takeShownPage(const QUrl& source)
{
    const qsizetype row = book_.pageAt(source.toLocalFile());
    const QSignalBlocker quiet(contents_);
    contents_->setCurrentRow(int(row));
    setPlainTitle(this, tr("Help - %1").arg(page_->documentTitle()));
}

void HelpWindow::keyPressEvent(QKeyEvent* event)
{
    // Escape closes what is on top, and that is the search first.
    if (event->key() == Qt::Key_Escape && !field_->text().isEmpty()) {
        field_->clear();
        contents_->setFocus(Qt::OtherFocusReason);
        return;
    }
    QDialog::keyPressEvent(event);
}

bool HelpWindow::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() != QEvent::KeyPress)
        return QDialog::eventFilter(watched, event);
    const int key = static_cast<QKeyEvent*>(event)->key();
    const bool isReturn = key == Qt::Key_Return || key == Qt::Key_Enter;
    if (watched == field_ && (key == Qt::Key_Down || isReturn)) {
        QWidget* const list = lists_->currentWidget();
        if (list == found_ && hits_->rowCount() > 0 && (isReturn || !found_->currentIndex().isValid()))
            found_->setCurrentIndex(hits_->index(0));
        if (isReturn && list == found_)
            go(0);
        else
            list->setFocus(Qt::OtherFocusReason);
        return true;
    }
    if (watched == found_ && isReturn) {
        go(found_->currentIndex().row());
        return true;
    }
    return QDialog::eventFilter(watched, event);
}

bool HelpWindow::open(QWidget& window, const HelpBook& book, qsizetype page)
{
    if (page < 0 || page >= book.pages().size())
        return false;
    auto* help = window.findChild<HelpWindow*>(QString(), Qt::FindDirectChildrenOnly);
    if (!help)
        help = new HelpWindow(book, &window);
    help->showPage(page);
    help->show();
    help->raise();
    help->activateWindow();
    help->page_->setFocus(Qt::OtherFocusReason);
    return true;
}

bool HelpWindow::showFor(QWidget& window, const QString& shownPage)
{
    const HelpBook book;
    qsizetype page = -1;
    for (const QWidget* at = window.focusWidget(); at && page < 0; at = at->parentWidget())
        page = book.pageAbout(at->objectName());
    return open(window, book, page < 0 ? book.pageAbout(shownPage) : page);
}

bool HelpWindow::showStart(QWidget& window)
{
    return open(window, HelpBook(), 0);
}

void HelpWindow::addKey(QWidget& window)
{
    connect(new QShortcut(QKeySequence::HelpContents, &window), &QShortcut::activated, &window, [&window] {
        if (!showFor(window, window.objectName()))
            showStart(window);
    });
}

} // namespace halvern
