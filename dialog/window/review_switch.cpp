// SPDX-License-Identifier: MIT
#include "dialog/window/review_switch.h"

#include "platform/foundation/user_defaults.h"

#include <QCheckBox>
#include <QCoreApplication>

namespace halvern {

namespace {

const QString kReviewKey = QStringLiteral("ReviewBeforePrinting");

struct ReviewSwitchWords {
    Q_DECLARE_TR_FUNCTIONS(ReviewSwitch)
};

} // namespace

bool reviewsDocuments()
{
    return UserDefaults::standardUserDefaults().objectForKey(kReviewKey).toBool();
}

QCheckBox* makeReviewSwitch(QWidget* parent)
{
    auto* box = new QCheckBox(ReviewSwitchWords::tr("Re&view before printing"), parent);
    box->setObjectName(QStringLiteral("review"));
    box->setToolTip(ReviewSwitchWords::tr(
        "Shows the pages as the application has made them, before they go to the printer"));
    box->setChecked(reviewsDocuments());
    QObject::connect(box, &QCheckBox::toggled, box, [](bool isOn) {
        UserDefaults::standardUserDefaults().changeGlobal(
            [isOn](QVariantMap& values) { values.insert(kReviewKey, isOn); });
    });
    return box;
}

} // namespace halvern
