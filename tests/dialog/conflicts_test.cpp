// SPDX-License-Identifier: MIT
// What the model does for a user whose choice clashes with others.
#include "tests/dialog/model_support.h"

namespace halvern {
namespace {

const char* const kOptions[] = {"Media", "Edge", "Tray", "Gloss"};

QByteArray photoPpd(const QByteArray& constraints)
{
    QByteArray text = ppdHeader() + ppdOption("Media", {"Plain", "Matte", "Photo"}) +
                      ppdOption("Edge", {"None/White", "Full/Borderless"}) +
                      ppdOption("Tray", {"Main", "Rear"}) + ppdOption("Gloss", {"Off", "On"}) +
                      ppdOption("Amount", {"Auto"}) +
                      "*CustomAmount True: \"pop\"\n*ParamCustomAmount Value/Value: 1 int 0 400\n";
    return text + constraints;
}

QString now(const PpdModel& model)
{
    QStringList values;
    for (const char* key : kOptions)
        values.append(model.value(q(key)));
    return values.join(u' ');
}

} // namespace

TEST(Conflicts, AChoiceChangesAsLittleElseAsItCan)
{
    const char* const pageSize = "*UIConstraints: *PageSize A4 *Edge Full\n";

    const struct {
        const char* name;
        const char* constraints;
        const char* before;
        const char* chosenBefore;
        const char* choice;
        const char* after; ///< empty: refused
    } cases[] = {
        {"the other one gives way", "*UIConstraints: *Edge Full *Media Plain\n", "", "", "Edge=Full",
         "Matte Full Main Off"},
        {"one change instead of two",
         "*UIConstraints: *Edge Full *Media Plain\n*UIConstraints: *Media Matte *Tray Main\n", "", "",
         "Edge=Full", "Photo Full Main Off"},
        {"two, where one does not do",
         "*UIConstraints: *Edge Full *Media Plain\n*UIConstraints: *Media Matte *Tray Main\n"
         "*UIConstraints: *Media Photo *Tray Main\n",
         "", "", "Edge=Full", "Matte Full Rear Off"},
        {"not what the user chose", "*cupsUIConstraints: \"*Edge Full *Media Photo *Gloss On\"\n",
         "Media=Photo Gloss=On", "Media", "Edge=Full", "Photo Full Main Off"},
        {"what the user chose, if nothing else helps", "*UIConstraints: *Edge Full *Media Plain\n", "",
         "Media", "Edge=Full", "Matte Full Main Off"},
        {"the PPD's own way goes first",
         "*cupsUIConstraints Full: \"*Edge Full *Media Plain\"\n*cupsUIResolver Full: \"*Media Photo\"\n", "",
         "", "Edge=Full", "Photo Full Main Off"},
        {"a way of the PPD's that leads nowhere",
         "*cupsUIConstraints Full: \"*Edge Full *Media Plain\"\n*cupsUIConstraints Back: \"*Media Photo "
         "*Edge Full\"\n"
         "*cupsUIResolver Full: \"*Media Photo\"\n*cupsUIResolver Back: \"*Media Plain\"\n",
         "", "", "Edge=Full", "Matte Full Main Off"},
        {"nothing helps",
         "*UIConstraints: *Edge Full *Media\n*UIConstraints: *Edge Full *Tray Main\n"
         "*UIConstraints: *Edge Full *Tray Rear\n",
         "", "", "Edge=Full", ""},
        {"a clash elsewhere stays", "*UIConstraints: *Gloss On *Tray Rear\n", "Gloss=On Tray=Rear", "",
         "Edge=Full", "Plain Full Rear On"},
        {"the older form without choices", "*NonUIConstraints: *Edge *Gloss\n", "Gloss=On", "", "Edge=Full",
         "Plain Full Main Off"},
        {"both forms in one PPD",
         "*cupsUIConstraints: \"*Gloss On *Tray Rear\"\n*UIConstraints: *Edge Full *Media Plain\n", "", "",
         "Edge=Full", "Matte Full Main Off"},
        {"the paper, of which there is one", pageSize, "", "", "Edge=Full", ""},
        {"names as the PPD does not spell them", "*cupsUIConstraints: \"*edge FULL *MEDIA plain\"\n", "", "",
         "Edge=Full", "Matte Full Main Off"},
        {"a custom value", "*UIConstraints: *Amount Custom *Media Plain\n", "", "", "Amount=120",
         "Matte None Main Off"},
        {"a custom value in other words", "*cupsUIConstraints: \"*CustomAmount True *Media Plain\"\n", "", "",
         "Amount=120", "Matte None Main Off"},
    };

    for (const auto& c : cases) {
        SCOPED_TRACE(c.name);
        const auto model = modelOf(photoPpd(c.constraints));
        for (const QString& option : q(c.before).split(u' ', Qt::SkipEmptyParts))
            model->restore({{option.section(u'=', 0, 0), option.section(u'=', 1)}});
        const QSet<QString> chosen{q(c.chosenBefore)};
        const QMap<QString, QString> before = model->values();
        const QString key = q(c.choice).section(u'=', 0, 0);
        const QString value = q(c.choice).section(u'=', 1);
        const QStringList planned = asTexts(model->alsoChanges(key, value, chosen));
        const ChangeResult result = model->choose(key, value, chosen);
        EXPECT_EQ(result.accepted, *c.after != 0) << qPrintable(result.refusal);
        EXPECT_EQ(result.accepted ? now(*model) : QString(), q(c.after));
        EXPECT_EQ(asTexts(result.sideChanges), planned) << "what was promised";
        EXPECT_EQ(model->values() == before, !result.accepted);
        EXPECT_EQ(result.accepted, result.refusal.isEmpty()) << "never silent";
    }
}

TEST(Conflicts, ThePaperChangesOnlyIfNothingElseHelps)
{
    const struct {
        const char* constraints;
        const char* after;
        const char* size;
    } cases[] = {
        {"*cupsUIConstraints: \"*PageSize A4 *Edge Full *Media Plain *Gloss On\"\n", "Matte Full Main On",
         "A4"},
        {"*UIConstraints: *PageSize A4 *Edge Full\n", "Plain Full Main On", "A5"},
    };

    for (const auto& c : cases) {
        QByteArray text = photoPpd(c.constraints);
        text.replace("*CloseUI: *PageSize\n", "*PageSize A5: \"\"\n*CloseUI: *PageSize\n");
        text += "*ImageableArea A5: \"9 9 411 586\"\n*PaperDimension A5: \"420 595\"\n";
        const auto model = modelOf(text);
        model->restore({{q("Gloss"), q("On")}});
        EXPECT_TRUE(model->choose(q("Edge"), q("Full"), {q("Media"), q("Gloss")}).accepted);
        EXPECT_EQ(now(*model), q(c.after)) << "rather what the user chose than the paper";
        EXPECT_EQ(model->value(q("PageSize")), q(c.size));
    }
}

TEST(Conflicts, AListOfChoicesSaysWhatEachClashesWith)
{
    const auto model = modelOf(photoPpd("*UIConstraints: *Edge Full *Media Plain\n"
                                        "*UIConstraints: *Edge Full *Media Matte\n"));
    EXPECT_TRUE(model->clashes(q("Media")).isEmpty());
    EXPECT_EQ(model->clashes(q("Edge")),
              (QHash<QString, QString>{{q("Full"), q("not with Media title: Plain")}}));
    ASSERT_TRUE(model->choose(q("Edge"), q("Full"), {}).accepted);
    EXPECT_EQ(model->clashes(q("Media")).keys().size(), 2);
    EXPECT_EQ(asTexts(model->alsoChanges(q("Media"), q("Matte"), {})), QStringList{q("Edge=None")});
    const ChangeResult back = model->putBack({q("Edge"), q("Media")}, {});
    EXPECT_EQ(asTexts(back.sideChanges), (QStringList{q("Edge=None"), q("Media=Plain")}));
    EXPECT_TRUE(model->changedKeys().isEmpty());
}

TEST(Conflicts, PuttingBackLeavesWhatTheUserChose)
{
    const auto model = modelOf(photoPpd("*cupsUIConstraints: \"*Media Plain *Gloss On *Tray Rear\"\n"));
    model->restore({{q("Media"), q("Photo")}, {q("Gloss"), q("On")}, {q("Tray"), q("Rear")}});
    ASSERT_TRUE(model->putBack({q("Media")}, {q("Gloss")}).accepted);
    EXPECT_EQ(now(*model), q("Plain None Main On"));
}

TEST(Conflicts, EndlessConstraintsEndInAnAnswer)
{
    // Each choice of an option rules out each of the next one's: whatever gives way clashes anew.
    QByteArray text = ppdHeader();
    for (int i = 0; i < 40; ++i)
        text += ppdOption("O" + QByteArray::number(i), {"A", "B", "C", "D"});
    for (int i = 0; i < 40; ++i) {
        for (const char a : {'B', 'C', 'D'}) {
            for (const char b : {'A', 'B', 'C', 'D'}) {
                const QByteArray name = QByteArray::number(i) + a + b;
                text += "*cupsUIConstraints R" + name + ": \"*O" + QByteArray::number(i) + ' ' + a + " *O" +
                        QByteArray::number((i + 1) % 40) + ' ' + b + "\"\n*cupsUIResolver R" + name +
                        ": \"*O" + QByteArray::number((i + 2) % 40) + " B\"\n";
            }
        }
    }
    const auto model = modelOf(text);
    const QMap<QString, QString> before = model->values();
    const ChangeResult result = model->choose(q("O0"), q("B"), {});
    EXPECT_FALSE(result.accepted);
    EXPECT_FALSE(result.refusal.isEmpty());
    EXPECT_EQ(model->values(), before);
}

} // namespace halvern
