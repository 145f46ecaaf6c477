// SPDX-License-Identifier: MIT
#pragma once

#include "dialog/options/constraints.h"
#include "dialog/options/given_options.h"
#include "dialog/options/ppd_lookup.h"
#include "dialog/options/printer_offer.h"
#include "platform/printing/ppd.h"

#include <QCoreApplication>
#include <QRectF>
#include <QSet>
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

/// Given options that another one could only be had by changing.
struct SettledOption {
    QString key;
    QString before;
    QList<SideChange> sideChanges;
};

/// What became of given options.
struct ApplyResult {
    QList<LeftOut> leftOut;
    QList<SettledOption> settled;
};

/// A choice or an option of the PPD as the user sees it.
struct ChoiceItem {
    QString keyword;
    QString text;
    QString obstacle; ///< the sentence why the printer's equipment rules it out; empty if it does not
};

struct OptionItem {
    QString key;
    QString text;
    QString group;
    QList<ChoiceItem> choices;  ///< listed ones, without the entry that stands for custom values
    bool isInstallable = false; ///< part of the printer's equipment, not of a job
};

enum class OptionKind { one, several, yesOrNo };

/// The kind and the limits of an option's custom values.
struct CustomValue {
    enum class Kind { none, whole, number, length, text, digits, secret };

    Kind kind = Kind::none; ///< none: the option has none, or one of several parts
    /// Of numbers, in points where they are lengths; of texts, of their characters. Nothing: only the printer
    /// knows.
    std::optional<ppd::Range> limits = {};

    bool isHidden() const { return kind == Kind::digits || kind == Kind::secret; }
};

/// A sheet in points, origin at its top left corner.
struct SheetGeometry {
    QSizeF paper;
    QRectF imageable;
};

/// The printer's options with their current choices: the PPD's marks, and the values that the PPD cannot mark
/// (custom values, values and keywords that it does not know), which are kept beside them. No option is ever
/// left marked as "Custom". The printer's equipment (its installable options) takes part in the constraints
/// and is nobody's to change. One thread at a time; it may be made on a worker.
class PpdModel {
    Q_DECLARE_TR_FUNCTIONS(PpdModel)

public:
    /// Marks the PPD's defaults. `file` is not null.
    explicit PpdModel(ppd::File file);

    /// The same; null if there is not enough memory for it.
    static std::shared_ptr<PpdModel> make(ppd::File file);

    ppd_file_t* file() const { return file_.get(); }

    /// The same, to keep it open beyond this object's life.
    std::shared_ptr<ppd_file_t> sharedFile() const { return file_; }

    /// What somebody calls a keyword or a text of the PPD in the user's language; the text itself if nothing.
    using Words = std::function<QString(const QString& text)>;

    /// Lets the texts for the user come from `words` as far as these have any. Without them they are the
    /// PPD's.
    void setWords(Words words) { words_ = std::move(words); }

    /// Applies options as one set: of an option that was given twice the later one counts, and only what is
    /// chosen in the end has to go together. Where it does not, the option gives way that has the least say.
    /// A value that the printer cannot take is left out, and so is an unknown option that no job carries.
    ApplyResult apply(const GivenOptions& given);

    /// Proposes a choice: listed values are checked against the PPD's constraints, custom values against
    /// their limits, unknown ones are kept as they are. Nothing has changed if it is refused.
    /// `reading` says what counts as a number where the PPD asks for one; "Custom." before a custom value is
    /// taken off only where the value is read as a whole.
    ChangeResult change(const QString& key, const QVariant& value,
                        ppd_lookup::NumberReading reading = ppd_lookup::NumberReading::whole);

    /// The same for a user who can be told: what clashes with the choice is changed with it, as little as
    /// possible, and what is in `chosen` or the paper's size only if nothing else helps. Values are read as a
    /// whole. Refused only if there is no way, and then nothing has changed.
    ChangeResult choose(const QString& key, const QVariant& value, const QSet<QString>& chosen);

    /// Chooses the printer's defaults for several options as one; an option that has none loses its choice.
    /// What else had to change is in the result, and so are the options themselves; what is in `chosen` only
    /// if nothing else helps.
    ChangeResult putBack(const QStringList& keys, const QSet<QString>& chosen);

    /// Why listed choices of the option clash with what is chosen now, by keyword: "not with Two-sided: Long
    /// edge". What goes with the rest is not in it.
    QHash<QString, QString> clashes(const QString& key) const;

    /// What choose() would change beside the listed choice.
    QList<SideChange> alsoChanges(const QString& key, const QString& choice,
                                  const QSet<QString>& chosen) const;

    /// What the printer has told of itself: it rules nothing out, but what it cannot do is chosen by nobody
    /// but the user.
    void setOffer(PrinterOffer offer) { offer_ = std::move(offer); }

    /// Puts earlier values back without any check, as undoing a change needs. An empty one is no choice at
    /// all where the printer has none by itself.
    void restore(const QMap<QString, QString>& values);

    /// Whether the option's current value would clash if restore() put these values back.
    bool wouldClash(const QString& key, const QMap<QString, QString>& restored) const;

    /// Whether a listed choice could be had without changing anything else.
    bool goesWithTheRest(const QString& key, const QString& choice) const;

    /// The current value: kept, else marked, else empty.
    QString value(const QString& key) const;

    /// Whether the value is kept beside the PPD's marks.
    bool isKept(const QString& key) const { return kept_.contains(key); }

    const QMap<QString, QString>& kept() const { return kept_; }

    /// Leaves the option without a mark and without a default for whoever looks at the PPD itself, until
    /// show(). What this class answers stays the same.
    void hide(const QString& key);
    void show(const QString& key);

    bool isHidden(const QString& key) const { return hidden_.contains(key); }

    /// Every current value: marks and kept ones, without the printer's equipment.
    const QMap<QString, QString>& values() const { return values_; }

    /// The current value as a job has to spell it: a custom value says that it is one, unless the printer's
    /// own pages speak with it in another way.
    QString jobValue(const QString& key) const;

    /// What the printer has by itself where that is not what the PPD says: a queue may have defaults of its
    /// own.
    void setDefaults(const QMap<QString, QString>& defaults);

    /// What the printer has by itself; empty if it chooses nothing that the PPD lists.
    QString defaultValue(const QString& key) const { return defaults_.value(key); }

    /// The options whose value is another one than the printer has by itself.
    const QSet<QString>& changedKeys() const { return changed_; }

    /// The user's words for an option and a value; the keyword or value itself if nobody has any.
    QString optionText(const QString& key) const;
    QString choiceText(const QString& key, const QString& choice) const;

    /// What the PPD itself calls an option or a listed choice in the language that it was written in.
    QString ownText(const QString& key, const QString& choice = QString()) const;

    /// The keywords of the options in the PPD's order. PageRegion, which follows PageSize, is not among them.
    const QStringList& keys() const { return keys_; }

    /// How many choices the PPD lists for an option; 0 if it does not know it.
    int choiceCount(const QString& key) const;

    OptionKind kind(const QString& key) const;

    /// What may be chosen beside the listed choices.
    CustomValue customValue(const QString& key) const;

    /// Whether a PIN or a password is in the current value, which nobody is to read on a screen or in a file.
    bool isSecret(const QString& key) const;

    /// The options of which that is true.
    QSet<QString> secrets() const;

    /// The title of the option's group; empty if the PPD does not know the option.
    QString groupText(const QString& key) const;

    /// The number of that group in the PPD; -1 if it has none.
    int groupNumber(const QString& key) const { return groups_.value(key, -1); }

    /// Whether the option says what is built into the printer.
    bool isInstallable(const QString& key) const { return equipment_.contains(key); }

    /// An option with its words; one without choices if the PPD does not know it.
    OptionItem option(const QString& key) const;

    /// What the PPD names as the option's default although it does not list it; empty if it lists it.
    QString unlistedDefault(const QString& key) const;

    /// The sheet of the current page size; A4 with half-inch margins if the PPD knows no size at all.
    SheetGeometry sheet() const;

    /// The highest resolution of the current choice in dots per inch; kUsualResolution if the PPD does not
    /// say.
    int resolution() const;

private:
    QString inWords(const QString& text) const { return words_ ? words_(text) : text; }

    /// What a value would become.
    struct Proposal {
        QString key; ///< as the PPD spells it
        QString value;
        bool isListed = false;
        QString refusal = {};
    };

    struct GivenSet;

    void readOptions();
    Proposal propose(const QString& key, const QString& value, ppd_lookup::NumberReading reading) const;
    Proposal proposeCustom(Proposal proposal, ppd_lookup::NumberReading reading) const;
    Proposal proposePageSize(Proposal proposal) const;
    Proposal proposeGiven(const GivenOption& option) const;
    GivenSet checkGiven(const GivenOptions& given, ApplyResult& result) const;
    bool settleGiven(GivenSet& set, ApplyResult& result) const;
    bool resolveGiven(const Constraint& clash, GivenSet& set, ApplyResult& result) const;
    void leaveWeakestOut(const Constraint& clash, GivenSet& set, ApplyResult& result) const;

    MarkView marksWith(const OptionMarks& changed) const { return {equipment_, marks_, changed}; }

    QString asMark(const QString& key, const QString& value) const;
    ChangeResult changeListed(const QString& key, const QString& choice);
    std::optional<OptionMarks> resolve(const QString& key, const OptionMarks& fixed) const;
    std::optional<OptionMarks> settle(const OptionMarks& wanted, const QSet<QString>& chosen) const;
    QStringList choicesToTry(const QString& key) const;
    bool areListed(const QString& key, const QString& values) const;
    bool isOfferedWith(const QString& key, const QString& choice) const;
    ChangeResult refuse(const QString& sentence) const;
    QString conflictSentence(const QString& key, const MarkView& proposed,
                             const Constraint& constraint) const;
    QString clashText(const QString& key, const Constraint& constraint) const;
    QString unlistedText(const QString& key, const QString& value) const;
    void readOwnTexts();
    void keepOwnTexts();
    void note(const QString& key, const QString& value);
    SideChange sideChange(const QString& key, const QString& choice) const;
    void setMark(const QString& key, const QString& choice);
    void unmark(const QString& key);
    void drop(const QString& key);
    void keep(const QString& key, const QString& value);

    std::shared_ptr<ppd_file_t> file_;
    Constraints constraints_;
    QStringList keys_;
    QHash<QString, int> groups_; ///< the options' groups in the PPD
    QMap<QString, QString> values_;
    QMap<QString, QString> defaults_;
    OptionMarks marks_; // the values as constraints look at them
    QSet<QString> changed_;
    QMap<QString, QString> equipment_;
    QMap<QString, QString> kept_;
    QMap<QString, QByteArray> hidden_;    // the PPD's defaults
    QHash<QString, QByteArray> ownTexts_; // those that are shown in another language
    PrinterOffer offer_;
    Words words_;
};

/// A value as it is written into a job: strings as they stand, numbers in the C locale, truth values as
/// "True" and "False".
QString valueText(const QVariant& value);

} // namespace halvern
