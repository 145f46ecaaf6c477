#include "tests/end_to_end/color/real_dialog.h"

#include "tests/support/observers.h"

#include <QDir>
#include <QPushButton>
#include <QTest>

#include <gtest/gtest.h>

namespace halvern {

RealDialog::RealDialog(const QString& queue, const QString& photo, PanelSource& panels)
    : session({queue, {}, {photo}, 1}, panels), dialog(session)
{
    dialog.show();
    session.start();
}

bool RealDialog::isReady()
{
    return waitUntil([this] { return session.canPrint(); });
}

QWidget* RealDialog::control(int tag)
{
    for (QWidget* widget : dialog.findChildren<QWidget*>()) {
        const QVariant own = widget->property("tag");
        if (own.isValid() && own.toInt() == tag && widget->isVisible())
            return widget;
    }
    ADD_FAILURE() << "no visible control has the tag " << tag;
    static QWidget nothing;
    return &nothing;
}

void RealDialog::type(int tag, const char* text)
{
    QWidget* field = control(tag);
    field->setFocus();
    QTest::keyClick(field, Qt::Key_A, Qt::ControlModifier);
    QTest::keyClicks(field, QString::fromLatin1(text));
    QTest::keyClick(field, Qt::Key_Tab);
}

int RealDialog::print()
{
    QTest::mouseClick(dialog.findChild<QPushButton*>(QStringLiteral("printButton")), Qt::LeftButton);
    const bool ended = waitUntil([this] { return dialog.run() && dialog.run()->isOver(); }, 60);
    EXPECT_TRUE(ended && dialog.outcome().printed) << qPrintable(dialog.outcome().sentence);
    return dialog.outcome().printed ? dialog.outcome().jobId : 0;
}

QString makeTestPhoto(const QString& path)
{
    QImage photo(600, 400, QImage::Format_RGB32);
    for (int y = 0; y < photo.height(); ++y) {
        for (int x = 0; x < photo.width(); ++x)
            photo.setPixel(x, y, qRgb(x * 255 / 600, y * 255 / 400, 90));
    }
    EXPECT_TRUE(photo.save(path));
    return path;
}

qsizetype sheetsOf(const PrivateCups& server, int job)
{
    return QDir(server.jobFile(job, QString())).entryList({QStringLiteral("page-*.png")}, QDir::Files).size();
}

} // namespace halvern
