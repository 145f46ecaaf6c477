// SPDX-License-Identifier: MIT
#include "dialog/window/search_box.h"

#include "dialog/window/search_popup.h"

#include <QMouseEvent>

namespace halvern {

SearchBox::SearchBox(Rows rows, const QString& searchName, QWidget* parent)
    : QComboBox(parent), rows_(rows), searchName_(searchName)
{
    setSizeAdjustPolicy(AdjustToMinimumContentsLengthWithIcon);
}

void SearchBox::choose(int row)
{
    hidePopup();
    setCurrentIndex(row);
    Q_EMIT activated(row);
    Q_EMIT textActivated(itemText(row));
}

void SearchBox::showPopup()
{
    if (count() == 0)
        return;
    if (!popup_)
        popup_ = new SearchPopup(*this, rows_, searchName_);
    popup_->open();
}

void SearchBox::hidePopup()
{
    if (popup_)
        popup_->hide();
    QComboBox::hidePopup();
}

// The toolkit's own would make its list for the whole model.
void SearchBox::mousePressEvent(QMouseEvent* event)
{
    if (event->button() == Qt::LeftButton)
        showPopup();
    else
        event->ignore();
}

} // namespace halvern
