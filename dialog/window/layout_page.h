// SPDX-License-Identifier: MIT
#pragma once

#include "dialog/session/dialog_session.h"

#include <QWidget>

class QCheckBox;
class QComboBox;
class QDoubleSpinBox;
class QFormLayout;
class QLabel;
class QLineEdit;
class QPushButton;
class QSpinBox;
class QToolButton;

namespace halvern {

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
    QWidget* makeSizeRow();
    QWidget* makePlaceRow();
    QWidget* makeCaptionRow();
    QWidget* makePhotoRow();
    QWidget* makeKeepRow();
    QDoubleSpinBox* makeLength(const QString& name, const QString& words, double most);
    QSpinBox* makeNumber(const QString& name, const QString& words, int most);
    void addRow(const QString& text, QWidget* field, QWidget* buddy);
    void connectControls();
    void listLayouts();
    void chooseLayout();
    void chooseMeasures();
    void change();
    void chooseSize();
    void setPlacement(int copies);
    void keepLayout();
    void forgetLayout();
    std::optional<QSizeF> usedPaper() const;
    void refreshSize(const PageSettings& page);
    void refreshPhoto();
    double unit() const;

    DialogSession& session_;
    QFormLayout* form_;
    QComboBox* layout_;
    QSpinBox* rows_;
    QSpinBox* columns_;
    QDoubleSpinBox* eachWidth_;
    QDoubleSpinBox* eachHeight_;
    QCheckBox* repeats_;
    QComboBox* sizeKind_;
    QDoubleSpinBox* width_;
    QDoubleSpinBox* height_;
    QDoubleSpinBox* percent_;
    QCheckBox* isPlaced_;
    QDoubleSpinBox* left_;
    QDoubleSpinBox* top_;
    QDoubleSpinBox* margin_;
    QDoubleSpinBox* border_;
    QCheckBox* line_;
    QCheckBox* cutMarks_;
    QLineEdit* caption_;
    QComboBox* tokens_;
    QSpinBox* copies_;
    QPushButton* crop_;
    QPushButton* cropAll_;
    QLineEdit* name_;
    QPushButton* keep_;
    QPushButton* forget_;
    QLabel* problem_;
    QPushButton* length_;
    QWidget* table_ = nullptr;
    QWidget* each_ = nullptr;
    QWidget* size_ = nullptr;
    QWidget* place_ = nullptr;
    QWidget* photoRow_ = nullptr;
    QWidget* keepRow_ = nullptr;
    QStringList listed_;
    size_t photo_ = 0;
    bool isRefreshing_ = false;
};

} // namespace halvern
