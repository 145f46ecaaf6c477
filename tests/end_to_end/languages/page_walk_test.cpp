// SPDX-License-Identifier: MIT
// Every page in a language that gives away what was not translated and what is cut.
#include "dialog/program/application.h"
#include "dialog/session/plugin_loader.h"
#include "tests/support/real_dialog.h"

#include <QAbstractItemView>
#include <QGroupBox>
#include <QRegularExpression>
#include <QScrollArea>
#include <QScrollBar>
#include <QTabBar>
#include <QTextDocumentFragment>
#include <QTranslator>

namespace halvern {
namespace {

// Our texts in brackets, and longer by a third. From right to left, the layouts' are left to the bundle's
// catalogue.
class Brackets : public QTranslator {
public:
    explicit Brackets(const char* direction) : direction_(QLatin1StringView(direction)) {}

    QString translate(const char* context, const char* source, const char*, int) const override
    {
        const QString text = QString::fromUtf8(source);
        if (text == q("QT_LAYOUT_DIRECTION"))
            return direction_;
        const bool isLayout = QLatin1StringView(context).startsWith(QLatin1StringView("Tessarin"));
        return isLayout && direction_ == q("RTL") ? QString()
                                                  : u'[' + text + QString(text.size() / 3, u'~') + u']';
    }

    bool isEmpty() const override { return false; }

private:
    QString direction_;
};

QString withoutMarkup(const QString& text)
{
    return Qt::mightBeRichText(text) ? QTextDocumentFragment::fromHtml(text).toPlainText() : text;
}

QStringList textsOf(const QWidget& widget)
{
    QStringList texts{widget.toolTip(),
                      widget.accessibleName(),
                      widget.accessibleDescription(),
                      widget.property("title").toString(),
                      widget.property("placeholderText").toString(),
                      widget.property("suffix").toString()};
    if (!qobject_cast<const QLineEdit*>(&widget) && !qobject_cast<const QAbstractSpinBox*>(&widget))
        texts.append(widget.property("text").toString());
    if (const auto* box = qobject_cast<const QComboBox*>(&widget)) {
        for (int i = 0; i < box->count(); ++i)
            texts.append(box->itemText(i));
    }
    if (const auto* tabs = qobject_cast<const QTabBar*>(&widget)) {
        for (int i = 0; i < tabs->count(); ++i)
            texts.append(tabs->tabText(i));
    }
    if (const auto* view = qobject_cast<const QAbstractItemView*>(&widget)) {
        for (int row = 0; view->model() && row < view->model()->rowCount(); ++row)
            texts.append(view->model()->index(row, 0).data().toString());
    }
    for (QString& text : texts)
        text = withoutMarkup(text);
    return texts;
}

// In brackets, in the bundle's Arabic, without words, or somebody else's words.
bool isTranslated(const QString& text)
{
    static const QRegularExpression told(q("[\\[\\x{0600}-\\x{06ff}]"));
    static const QRegularExpression outside(
        q("evening\\.jpg|/\\S+|Halvern|Tessarin|form|[0-9.]+ (mm|dpi)|(US |ISO )?[A-Z0-9]+|sRGB|1:1"));
    static const QRegularExpression word(q("[a-z]{2}"));
    return told.match(text).hasMatch() || !word.match(QString(text).remove(outside)).hasMatch();
}

bool isCut(const QWidget& widget)
{
    const auto* label = qobject_cast<const QLabel*>(&widget);
    if (label && label->wordWrap())
        return label->height() < label->heightForWidth(label->width());
    const bool hasWords = label || qobject_cast<const QAbstractButton*>(&widget);
    return hasWords && !widget.property("text").toString().isEmpty() &&
           (widget.width() < widget.sizeHint().width() ||
            widget.height() < widget.minimumSizeHint().height());
}

QString nameOf(const QWidget& widget)
{
    return QLatin1StringView(widget.metaObject()->className()) + q(" ") + widget.objectName();
}

} // namespace

class PageWalk : public testing::TestWithParam<std::pair<const char*, const char*>> {};

TEST_P(PageWalk, FindsNothingCutAndNothingLeftInEnglish)
{
    const auto& [language, direction] = GetParam();
    useBuiltBundle(q(language));
    const auto translators = prepareApplication();
    Brackets words(direction);
    ASSERT_TRUE(QCoreApplication::installTranslator(&words));
    PrivateCups server;
    ASSERT_TRUE(server.addQueue(q("Tessarin"))) << qPrintable(server.error());
    const QTemporaryDir folder;
    SessionRequest request{q("Tessarin"), {}, {folder.filePath(q("evening.jpg"))}};
    QImage photo(600, 400, QImage::Format_RGB32);
    photo.fill(Qt::blue);
    ASSERT_TRUE(photo.save(request.files.front(), "JPEG"));
    request.panelsAskPrinter = false;
    PluginLoader panels({QFileInfo(q(HALVERN_TEST_BUNDLE)).path()});
    RealDialog user(request, panels);
    ASSERT_TRUE(user.isReady());
    EXPECT_EQ(user.dialog.isRightToLeft(), QLatin1StringView(direction) == QLatin1StringView("RTL"));
    QStringList wrong;
    for (const QString& page : user.dialog.findChild<PanelDeck*>()->identifiers()) {
        ASSERT_TRUE(user.showPage(page.toLatin1().constData()));
        QTest::qWait(0);
        for (const QWidget* widget : user.dialog.findChildren<QWidget*>()) {
            if (!widget->isVisible())
                continue;
            if (isCut(*widget))
                wrong.append(page + q(": cut: ") + nameOf(*widget) + q(": ") +
                             widget->property("text").toString());
            for (const QString& text : textsOf(*widget)) {
                if (!isTranslated(text) && user.dialog.isRightToLeft())
                    wrong.append(page + q(": not translated: ") + nameOf(*widget) + q(": ") + text);
            }
        }
        if (user.dialog.findChild<QScrollArea*>(q("pageArea"))->horizontalScrollBar()->maximum() > 0)
            wrong.append(page + q(": wider than its place"));
    }
    EXPECT_EQ(wrong.join(u'\n').toStdString(), "");
    for (const OptionValue& option : user.session.valuesToSend().list()) {
        for (const QChar character : option.value)
            EXPECT_LT(character.unicode(), 0x80) << qPrintable(option.key + u'=' + option.value);
    }
}

INSTANTIATE_TEST_SUITE_P(Languages, PageWalk,
                         testing::Values(std::pair("ar_EG", "RTL"), std::pair("de_DE", "LTR")));

} // namespace halvern
