// SPDX-License-Identifier: MIT
#pragma once

#include <QComboBox>

#include <functional>

namespace halvern {

class SearchPopup;

/// What an item's model says for a SearchBox beside the text and, in Qt::UserRole, the value.
enum SearchRole {
    kDetailRole = Qt::UserRole + 1, ///< a second text, paler
    kGroupRole,                     ///< the heading above the first of its kind; empty: none
    kSearchedRole,                  ///< what a search looks at, in the form of SearchBox::setForm()
};

/// A pop-up that opens a list with a field for a search above it. The list has headings, and a second text
/// beside the first or below it; only what is seen is drawn. It is worked by keyboard, pointer and assistive
/// technology as any other pop-up. Main thread only.
class SearchBox : public QComboBox {
    Q_OBJECT

public:
    enum class Rows { oneLine, twoLines };

    SearchBox(Rows rows, const QString& searchName, QWidget* parent);

    /// What is done to a text that is typed before it is looked for; without, it is put in small letters.
    using Form = std::function<QString(const QString& typed)>;

    void setForm(Form form) { form_ = std::move(form); }

    QString formOf(const QString& typed) const { return form_ ? form_(typed) : typed.toLower().simplified(); }

    /// As if the user had chosen the row.
    void choose(int row);

    void showPopup() override;
    void hidePopup() override;

protected:
    void mousePressEvent(QMouseEvent* event) override;

private:
    Rows rows_;
    QString searchName_;
    Form form_;
    SearchPopup* popup_ = nullptr;
};

} // namespace halvern
