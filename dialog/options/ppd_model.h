#pragma once

#include "dialog/options/constraints.h"
#include "dialog/options/option_value.h"
#include "dialog/options/ppd_lookup.h"
#include "platform/printing/ppd.h"

#include <QCoreApplication>
#include <QRectF>
#include <QVariant>

#include <functional>

namespace halvern {

/// A change that a resolver made, with the texts to show.
struct SideChange {
    QString key;
    QString before;
    QString choice;
    QString optionText;
    QString choiceText;
};

/// The answer to a proposed choice.
struct ChangeResult {
    bool accepted = false;
    QString refusal; ///< a sentence for the user; empty if accepted
    QList<SideChange> sideChanges;
};

/// A choice or an option of the PPD as the user sees it.
struct ChoiceItem {
    QString keyword;
    QString text;
};

struct OptionItem {
    QString key;
    QString text;
    QString group;
    QList<ChoiceItem> choices;  ///< listed ones, without the entry that stands for custom values
    bool isInstallable = false; ///< part of the printer's equipment, not of a job
};

/// A sheet in points, origin at its top left corner.
struct SheetGeometry {
    QSizeF paper;
    QRectF imageable;
};

/// The printer's options with their current choices: the PPD's marks, and the values that the PPD cannot mark
/// (custom values, values and keywords that it does not know), which are kept beside them. No option is ever
/// left marked as "Custom". Main thread only.
class PpdModel {
    Q_DECLARE_TR_FUNCTIONS(PpdModel)

public:
    /// Marks the PPD's defaults. `file` is not null.
    explicit PpdModel(ppd::File file);

    ppd_file_t* file() const { return file_.get(); }

    /// The same, to keep it open beyond this object's life.
    std::shared_ptr<ppd_file_t> sharedFile() const { return file_; }

    /// What somebody calls a keyword or a text of the PPD in the user's language; the text itself if nothing.
    using Words = std::function<QString(const QString& text)>;

    /// Lets the texts for the user come from `words` as far as these have any. Without them they are the
    /// PPD's.
    void setWords(Words words) { words_ = std::move(words); }

    /// Applies options in order. Answers the sentences about those that were refused.
    QStringList apply(const OptionValues& options);

    /// Proposes a choice: listed values are checked against the PPD's constraints, custom values against
    /// their limits, unknown ones are kept as they are. Nothing has changed if it is refused.
    /// `reading` says what counts as a number where the PPD asks for one; "Custom." before a custom value is
    /// taken off only where the value is read as a whole.
    ChangeResult change(const QString& key, const QVariant& value,
                        ppd_lookup::NumberReading reading = ppd_lookup::NumberReading::whole);

    /// Puts earlier values back without any check, as undoing a change needs.
    void restore(const QMap<QString, QString>& values);

    /// The current value: kept, else marked, else empty.
    QString value(const QString& key) const;

    /// Whether the value is kept beside the PPD's marks.
    bool isKept(const QString& key) const { return kept_.contains(key); }

    const QMap<QString, QString>& kept() const { return kept_; }

    /// Every current value: marks and kept ones.
    QMap<QString, QString> values() const;

    /// The user's words for an option and a value; the keyword or value itself if nobody has any.
    QString optionText(const QString& key) const;
    QString choiceText(const QString& key, const QString& choice) const;

    /// The options in the PPD's order. PageRegion, which follows PageSize, is not among them.
    QList<OptionItem> options() const;

    /// The sheet of the current page size; A4 with half-inch margins if the PPD knows no size at all.
    SheetGeometry sheet() const;

    /// The highest resolution of the current choice in dots per inch; 300 if the PPD does not say.
    int resolution() const;

private:
    QString inWords(const QString& text) const { return words_ ? words_(text) : text; }

    OptionItem makeItem(const ppd_option_s& option) const;
    ChangeResult changeListed(const QString& key, const QString& choice);
    ChangeResult keepCustom(const QString& key, const QString& value, ppd_lookup::NumberReading reading);
    ChangeResult keepPageSize(const QString& value);
    bool resolve(const QString& key, const QString& choice, OptionMarks& proposed) const;
    ChangeResult refuse(const QString& sentence) const;
    QString conflictSentence(const QString& key, const QString& choice, const OptionMarks& proposed,
                             const Constraint& constraint) const;
    void setMark(const QString& key, const QString& choice);
    void keep(const QString& key, const QString& value);

    std::shared_ptr<ppd_file_t> file_;
    std::vector<Constraint> constraints_;
    QMap<QString, QString> kept_;
    Words words_;
};

/// A value as it is written into a job: strings as they stand, numbers in the C locale, truth values as
/// "True" and "False".
QString valueText(const QVariant& value);

} // namespace halvern
