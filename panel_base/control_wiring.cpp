// SPDX-License-Identifier: MIT
#include "panel_base/base_panel.h"

#include "panel_base/tags.h"
#include "platform/toolkit/control.h"
#include "platform/toolkit/decimal_slider.h"
#include "platform/toolkit/matrix.h"
#include "platform/toolkit/stepper.h"
#include "platform/toolkit/user_action.h"
#include "platform/toolkit/view_search.h"

#include <QAbstractButton>
#include <QComboBox>
#include <QKeyEvent>
#include <QLineEdit>

namespace halvern {

namespace {

// A layout names the operation that a control sends in this property, and marks with the other one a field
// whose editing the panel follows.
constexpr char kAction[] = "action";
constexpr char kDelegate[] = "delegate";

// Set while a field holds something that the user typed since editing of it last ended.
constexpr char kEdited[] = "edited";

// Set once a control is connected.
constexpr char kWired[] = "wired";

// Return ends the editing of a field. Unless it is kept from going further, it presses the dialog's own
// button, which prints.
class ReturnKeeper : public QObject {
public:
    using QObject::QObject;

    bool eventFilter(QObject* field, QEvent* event) override
    {
        if (event->type() != QEvent::KeyPress)
            return false;
        const int key = static_cast<QKeyEvent*>(event)->key();
        if (key != Qt::Key_Return && key != Qt::Key_Enter)
            return false;
        field->event(event);
        event->accept();
        return true;
    }
};

struct Action {
    QLatin1StringView name;
    void (KSTRVLBasePDEHalvern::*operation)(QWidget*);
};

constexpr Action kActions[] = {
    {QLatin1StringView("changePrinterSetting:"), &KSTRVLBasePDEHalvern::changePrinterSetting},
    {QLatin1StringView("incrementControl:"), &KSTRVLBasePDEHalvern::incrementControl},
    {QLatin1StringView("decrementControl:"), &KSTRVLBasePDEHalvern::decrementControl},
    {QLatin1StringView("sendUICommand:"), &KSTRVLBasePDEHalvern::sendUICommand},
};

} // namespace

void KSTRVLBasePDEHalvern::enableTextFieldsForEditingInView(QWidget* view)
{
    bool missed = false;
    for (int tag = tags::kCompanion;; ++tag) {
        QWidget* found = view_controlForTag(view, tag);
        if (!found) {
            if (missed)
                return;
            missed = true;
            continue;
        }
        missed = false;
        found->setProperty(kAction, QStringLiteral("changePrinterSetting:"));
        if (QLineEdit* field = control::asTextField(found)) {
            field->setProperty(kDelegate, true);
            field->setReadOnly(false);
            // The colour that the user's palette gives to what can be edited; white in the light one.
            field->setBackgroundRole(QPalette::Base);
        }
        wireControl(found);
    }
}

void KSTRVLBasePDEHalvern::wireControlsInView(QWidget* view)
{
    wireControl(view);
    const QList<QWidget*> children = subviewsOf(view);
    for (QWidget* child : children)
        wireControlsInView(child);
}

// Only signals of a user's action are connected: showing a stored choice must not come back as a new one. The
// widgets may outlive the panel by a moment, so they hold no reference to it.
void KSTRVLBasePDEHalvern::wireControl(QWidget* control)
{
    const bool wanted = control->property(kAction).isValid() || control->property(kDelegate).toBool();
    if (!wanted || control->property(kWired).toBool())
        return;
    control->setProperty(kWired, true);
    const auto send = [weak = weak_from_this(), control](const auto&...) {
        if (const auto self = weak.lock())
            self->sendAction(control);
    };
    if (auto* field = qobject_cast<QLineEdit*>(control))
        wireTextField(field);
    else if (auto* popup = qobject_cast<QComboBox*>(control))
        QObject::connect(popup, &QComboBox::activated, popup, send);
    else if (auto* matrix = qobject_cast<Matrix*>(control))
        QObject::connect(matrix, &Matrix::userSelected, matrix, send);
    else if (auto* slider = qobject_cast<DecimalSlider*>(control))
        QObject::connect(slider, &DecimalSlider::userMoved, slider, send);
    else if (auto* stepper = qobject_cast<Stepper*>(control))
        QObject::connect(stepper, &Stepper::userStepped, stepper, send);
    else if (auto* button = qobject_cast<QAbstractButton*>(control))
        QObject::connect(button, &QAbstractButton::clicked, button, send);
}

void KSTRVLBasePDEHalvern::wireTextField(QLineEdit* field)
{
    field->installEventFilter(new ReturnKeeper(field));
    QObject::connect(field, &QLineEdit::textEdited, field, [weak = weak_from_this(), field] {
        field->setProperty(kEdited, true);
        const auto self = weak.lock();
        const UserAction action;
        if (self && field->property(kDelegate).toBool())
            self->controlTextDidChange(field);
    });
    // Return sends this and losing the focus sends it again: what was not edited since does not end editing
    // twice.
    QObject::connect(field, &QLineEdit::editingFinished, field, [weak = weak_from_this(), field] {
        const auto self = weak.lock();
        if (!self || !field->property(kEdited).toBool())
            return;
        field->setProperty(kEdited, false);
        const UserAction action;
        // A field whose keystrokes were proposed has nothing left to send.
        if (field->property(kDelegate).toBool())
            self->controlTextDidEndEditing(field);
        else
            self->sendAction(field);
        // What the operation wrote into the field is no edit of the user's.
        field->setProperty(kEdited, false);
    });
}

void KSTRVLBasePDEHalvern::sendAction(QWidget* sender)
{
    const QString name = sender->property(kAction).toString();
    const UserAction userAction;
    for (const Action& action : kActions) {
        if (action.name == name)
            (this->*action.operation)(sender);
    }
}

} // namespace halvern
