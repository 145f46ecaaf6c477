// SPDX-License-Identifier: MIT
#include "dialog/window/preset_bar.h"

#include "dialog/session/dialog_session.h"
#include "dialog/window/preset_name_dialog.h"
#include "platform/foundation/list_text.h"
#include "platform/toolkit/plain_text.h"

#include <QComboBox>
#include <QDir>
#include <QFileDialog>
#include <QHBoxLayout>
#include <QMenu>
#include <QStandardItemModel>
#include <QToolButton>

#include <algorithm>

namespace halvern {

namespace {

// Printer's defaults and what was used last belong together; each other kind is a group.
int groupOf(PresetKind kind)
{
    return kind == PresetKind::printerDefaults ? int(PresetKind::lastUsed) : int(kind);
}

QString hintOf(const PresetEntry& entry)
{
    if (entry.kind == PresetKind::savedOptions)
        return PresetBar::tr("From your saved options (lpoptions)");
    if (entry.kind == PresetKind::otherQueue)
        return PresetBar::tr("Made for a printer of the same model");
    return entry.isThere ? QString() : PresetBar::tr("Nothing was printed here yet");
}

QFileDialog* makeFileDialog(QWidget* parent, const QString& title, const char* name)
{
    auto* dialog = new QFileDialog(parent, title, QDir::homePath(), PresetBar::tr("Presets (*.json)"));
    dialog->setObjectName(QLatin1StringView(name));
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    dialog->setDefaultSuffix(QStringLiteral("json"));
    return dialog;
}

// A name as a file of its own may be called.
QString fileNameFor(const QString& name)
{
    QString file = name;
    for (QChar& character : file) {
        if (!character.isLetterOrNumber() && character != QLatin1Char(' '))
            character = QLatin1Char('-');
    }
    return file + QStringLiteral(".json");
}

} // namespace

PresetBar::PresetBar(DialogSession& session, QWidget* parent)
    : QWidget(parent),
      session_(session),
      box_(new QComboBox(this)),
      button_(new QToolButton(this)),
      menu_(new QMenu(this))
{
    box_->setObjectName(QStringLiteral("preset"));
    box_->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    box_->setMinimumContentsLength(18);
    box_->setMaxVisibleItems(20);
    setPlainName(box_, tr("Preset"));
    button_->setObjectName(QStringLiteral("presetMenu"));
    button_->setText(tr("..."));
    button_->setFocusPolicy(Qt::StrongFocus);
    button_->setPopupMode(QToolButton::InstantPopup);
    button_->setMenu(menu_);
    button_->setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Preferred);
    setPlainName(button_, tr("Save, rename and more"));
    setPlainToolTip(button_, tr("Save, rename and more"));
    menu_->setObjectName(QStringLiteral("presetActions"));
    auto* row = new QHBoxLayout(this);
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(6);
    row->addWidget(box_, 1);
    row->addWidget(button_);
    connect(box_, &QComboBox::activated, this, &PresetBar::applyShown);
    connect(menu_, &QMenu::aboutToShow, this, &PresetBar::fillMenu);
    connect(&session_.presets(), &Presets::changed, this, &PresetBar::fill);
    connect(&session_.presets(), &Presets::imported, this, [this](const QStringList& names) {
        QStringList shown;
        for (const QString& name : names.mid(0, 5))
            shown.append(isolated(name, int(kLongestPresetName)));
        Q_EMIT told(tr("Read from the file, and not applied yet: %1").arg(listText(shown)), {});
    });
    fillMenu();
    fill();
}

QWidget* PresetBar::box() const
{
    return box_;
}

QList<QWidget*> PresetBar::tabOrder() const
{
    return {box_, button_};
}

void PresetBar::fill()
{
    const QList<PresetEntry>& entries = session_.presets().entries();
    const bool isSame = std::ranges::equal(entries, shown_, [](const PresetEntry& a, const PresetEntry& b) {
        return a.isSame(b) && a.isThere == b.isThere;
    });
    shown_ = entries;
    if (isSame) {
        refresh();
        return;
    }
    box_->clear();
    auto* items = qobject_cast<QStandardItemModel*>(box_->model());
    for (int i = 0; i < entries.size(); ++i) {
        if (i > 0 && groupOf(entries[i].kind) != groupOf(entries[i - 1].kind))
            box_->insertSeparator(box_->count());
        box_->addItem(itemText(entries[i].title()), i);
        const int row = box_->count() - 1;
        box_->setItemData(row, plainToolTip(hintOf(entries[i])), Qt::ToolTipRole);
        if (items && !entries[i].isThere)
            items->item(row)->setEnabled(false);
    }
    refresh();
}

void PresetBar::refresh()
{
    const PresetEntry& chosen = session_.presets().chosen();
    int current = -1;
    for (int row = 0; row < box_->count(); ++row) {
        const QVariant index = box_->itemData(row);
        if (!index.isValid())
            continue;
        const PresetEntry& entry = shown_[index.toInt()];
        const bool isChosen = entry.isSame(chosen);
        if (isChosen)
            current = row;
        const QString text = isChosen && !session_.isAsChosen()
                                 ? tr("%1 – changed").arg(itemText(entry.title()))
                                 : itemText(entry.title());
        if (box_->itemText(row) != text)
            box_->setItemText(row, text);
    }
    box_->setCurrentIndex(current);
}

void PresetBar::applyShown()
{
    const QVariant index = box_->currentData();
    if (!index.isValid())
        return;
    const PresetEntry entry = shown_[index.toInt()];
    if (!entry.isSame(session_.presets().chosen()) || !session_.isAsChosen())
        session_.applyPreset(entry);
    refresh();
}

void PresetBar::fillMenu()
{
    menu_->clear();
    const QList<Preset> named = session_.presets().named();
    menu_->addAction(tr("&Save as New Preset..."), this, &PresetBar::saveAs);
    addChosensActions();
    menu_->addSeparator();
    menu_->addAction(tr("&Import from File..."), this, &PresetBar::importFile);
    QAction* all = menu_->addAction(tr("Export &All to File..."), this, [this, named] {
        exportFile(named, tr("Presets") + QStringLiteral(".json"));
    });
    all->setEnabled(!named.isEmpty());
}

void PresetBar::addChosensActions()
{
    const PresetEntry chosen = session_.presets().chosen();
    const bool isOurs = chosen.kind == PresetKind::named;
    const QString name = captionText(chosen.preset.name, 40);
    QAction* update =
        menu_->addAction(isOurs ? tr("&Update \"%1\"").arg(name) : tr("&Update"), this, [this, chosen] {
            session_.savePreset(chosen.preset.name, contentsOf(chosen.preset));
        });
    update->setEnabled(isOurs && !session_.isAsChosen());
    const QList<QAction*> others{
        menu_->addAction(isOurs ? tr("&Rename \"%1\"...").arg(name) : tr("&Rename..."), this,
                         &PresetBar::renameChosen),
        menu_->addAction(isOurs ? tr("&Delete \"%1\"").arg(name) : tr("&Delete"), this,
                         &PresetBar::deleteChosen),
        menu_->addAction(isOurs ? tr("&Export \"%1\" to File...").arg(name) : tr("&Export to File..."), this,
                         [this, chosen] { exportFile({chosen.preset}, fileNameFor(chosen.preset.name)); })};
    for (QAction* action : others)
        action->setEnabled(isOurs);
}

void PresetBar::saveAs()
{
    auto* dialog = new PresetNameDialog(PresetNameDialog::Purpose::save, session_, this);
    connect(dialog, &QDialog::accepted, this,
            [this, dialog] { session_.savePreset(dialog->name(), dialog->contents()); });
    dialog->open();
}

void PresetBar::renameChosen()
{
    const QString before = session_.presets().chosen().preset.name;
    auto* dialog = new PresetNameDialog(PresetNameDialog::Purpose::rename, session_, this);
    connect(dialog, &QDialog::accepted, this,
            [this, dialog, before] { session_.presets().rename(before, dialog->name()); });
    dialog->open();
}

void PresetBar::deleteChosen()
{
    const Preset preset = session_.presets().chosen().preset;
    session_.presets().remove(preset.name);
    Q_EMIT told(tr("The preset \"%1\" was deleted.").arg(preset.name),
                {tr("&Undo"), [this, preset] { session_.presets().save(preset); }});
}

void PresetBar::importFile()
{
    QFileDialog* dialog = makeFileDialog(this, tr("Import Presets"), "importPresets");
    dialog->setFileMode(QFileDialog::ExistingFile);
    connect(dialog, &QFileDialog::fileSelected, this,
            [this](const QString& path) { session_.presets().importFrom(path); });
    dialog->open();
}

void PresetBar::exportFile(const QList<Preset>& presets, const QString& suggestion)
{
    QFileDialog* dialog = makeFileDialog(this, tr("Export Presets"), "exportPresets");
    dialog->setAcceptMode(QFileDialog::AcceptSave);
    dialog->selectFile(suggestion);
    connect(dialog, &QFileDialog::fileSelected, this,
            [this, presets](const QString& path) { session_.presets().exportTo(path, presets); });
    dialog->open();
}

} // namespace halvern
