// SPDX-License-Identifier: MIT
#pragma once

#include "dialog/session/dialog_session.h"

#include <QWidget>

class QCheckBox;
class QComboBox;
class QDoubleSpinBox;
class QFormLayout;
class QLabel;
class QPushButton;
class QSpinBox;
class QToolButton;

namespace halvern {

class CaptionRow;
class KeepLayoutRow;
class PhotoPlaceRow;
class PhotoSizeRow;

/// How photos are put on sheets: the layout, sizes and margins, what stands around each photo, and what is
/// wanted of the photo that is shown. Main thread only.
class LayoutPage : public QWidget {
    Q_OBJECT

public:
    LayoutPage(DialogSession& session, QWidget* parent);

    /// Takes the session's current values into the controls; asks nothing of it.
    void refresh();

    /// The photo that the preview shows, by its place among all.
    void setPhoto(size_t photo);

Q_SIGNALS:
    /// The user wants to choose the part of the photo that is printed.
    void cropAsked();
    /// Something to tell: a sentence.
    void told(const QString& sentence);

private:
    QWidget* makeLayoutRow();
    QWidget* makeTableRow();
    QWidget* makePhotoRow();
    void addRow(const QString& text, QWidget* field, QWidget* buddy);
    void connectControls();
    void listLayouts();
    void chooseLayout();
    void chooseMeasures();
    void change();
    void setPlacement(int copies);
    void refreshPhoto();

    DialogSession& session_;
    QFormLayout* form_;
    QComboBox* layout_;
    QSpinBox* rows_;
    QSpinBox* columns_;
    QDoubleSpinBox* eachWidth_;
    QDoubleSpinBox* eachHeight_;
    QCheckBox* repeats_;
    PhotoSizeRow* size_;
    PhotoPlaceRow* place_;
    QDoubleSpinBox* margin_;
    QDoubleSpinBox* border_;
    QCheckBox* line_;
    QCheckBox* cutMarks_;
    CaptionRow* caption_;
    QSpinBox* copies_;
    QPushButton* crop_;
    QPushButton* cropAll_;
    KeepLayoutRow* keep_;
    QLabel* problem_;
    QPushButton* length_;
    QWidget* table_ = nullptr;
    QWidget* each_ = nullptr;
    QWidget* photoRow_ = nullptr;
    QStringList listed_;
    size_t photo_ = 0;
    bool isRefreshing_ = false;
};

} // namespace halvern
