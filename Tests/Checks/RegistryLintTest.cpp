#include "qxVariantGroup.h"
#include "qxVariantKinds.h"
#include "qxVariantReader.h"
#include "qxVariantSet.h"
#include "qxVariantWriter.h"
#include "qxVariants.h"

#include "CheckScene.h"
#include "qxLinter.h"
#include "qxNames.h"
#include "qxRegistryLint.h"

#include <OpenSG/OSGSimpleAttachments.h>

#include <algorithm>
#include <random>

static QString flawOf(const QString &script)
{
    return script.contains("wrong") ? QStringLiteral("line 1: wrong") : QString();
}

/// Findings of the registry as it changes, beside those of its document.
class RegistryLintTest : public CheckScene {
protected:
    RegistryLintTest() { qxVariantReader().read(cleanDocument()); }

    void finish()
    {
        lint.lookAtScene();
        while (!lint.work(0)) { // a bit at a time
        }
    }
    static QStringList textsOf(const qxFindings &findings)
    {
        QStringList texts;
        for (const qxFinding &each : findings) {
            texts += qxCheckCodes::id(each.code) + ' ' + each.message;
            EXPECT_TRUE(each.place.sort != qxFindingPlace::Document) << each.message.toStdString();
        }
        texts.sort();
        return texts;
    }
    QString found()
    {
        finish();
        return textsOf(lint.all()).join('\n');
    }
    /// What the linter finds in the document of the registry.
    static QString foundInDocument()
    {
        return textsOf(qxLinter::lint(qxVariantWriter().write(), flawOf)).join('\n');
    }

    int below(int count) { return int(m_random() % unsigned(count)); }
    template <class List>
    auto oneOf(const List &list)
    {
        return *std::next(list.begin(), below(int(list.size())));
    }
    QString someName()
    {
        return oneOf(QStringList{"Wheels", "Lamp", "Chair", "Paint", "Sun", "Signs", "Door", "Lid",
                                 "Front", "Back", "Spin", "Body", "Body/Trim", "Red", "Gone",
                                 "New 1", "New 2"});
    }
    QString someState()
    {
        return oneOf(QStringList{"Steel", "Alloy", "!Enable", "!Disable", "!Toggle", "!Next (Loop)",
                                 "Red", "Blue", "Shut", "Open", "Transform 1", "Gone"});
    }
    void editSet(qxVariantSet &set);
    void editVariant(qxVariant &variant);
    void edit();

    qxRegistryLint lint{flawOf};

private:
    std::mt19937 m_random{7};
};

void RegistryLintTest::editSet(qxVariantSet &set)
{
    qxStateList &states = set.*oneOf(qxVariantKinds::all())->states;
    switch (below(10)) {
    case 0:
        return set.addViewpoint(someName());
    case 1:
        return set.addTargetNodeName(someName());
    case 2:
        set.inclNodes = !set.inclNodes;
        return set.addMaterialSnapshot(someName(), someName());
    case 3:
        set.hotkey = oneOf(QStringList{"", "C", "Ctrl+1", "Nonsense"});
        return;
    case 4:
        set.script = oneOf(QStringList{"", "pass", "wrong"});
        return;
    case 5:
        set.defaultViewpoint = someName();
        return;
    case 6:
        return set.clear();
    case 7:
        set.analyzer.clipState = below(3);
        set.addAnimation(someName());
        return;
    case 8:
        if (!states.empty())
            states.remove(states.front().variant);
        return;
    default:
        return states.add(someName(), someState());
    }
}

void RegistryLintTest::editVariant(qxVariant &variant)
{
    qxVariantOption option;
    option.name = someState();
    option.shortcut = below(4) == 0 ? "W" : "";
    const auto named = [&option](const qxVariantOption &each) { return each.name == option.name; };
    switch (below(4)) {
    case 0:
        variant.defaultState = someState();
        return;
    case 1:
        variant.*qxVariantKinds::of(variant).sceneName = someName();
        return;
    case 2:
        variant.options.erase(std::remove_if(variant.options.begin(), variant.options.end(), named),
                              variant.options.end());
        return;
    default:
        if (std::none_of(variant.options.begin(), variant.options.end(), named))
            variant.options.push_back(option);
    }
}

void RegistryLintTest::edit()
{
    const qxVariantKind &kind = *oneOf(qxVariantKinds::all());
    const QString name = "New " + QString::number(below(5));
    std::vector<qxVariant *> variants;
    qxVariantKinds::visit(
        [&variants](const qxVariantKind &, qxVariant &each) { variants.push_back(&each); });
    qxVariant *const variant = oneOf(variants);
    switch (below(12)) {
    case 0:
        if (!qxVariants::findVariantGroup(name))
            qxVariants::createVariantGroup(name, false, true);
        return;
    case 1:
        return void(qxVariants::createVariantSet(
            name, false, oneOf(qxVariants::_variantGroups))); // one of the name is replaced
    case 2:
        if (qxVariants::_variantSets.size() > 2)
            qxVariants::removeVariantSet(oneOf(qxVariants::_variantSets)->name);
        return;
    case 3:
        oneOf(qxVariants::_variantSets)->name = qxVariants::getUniqueVariantSetName(name);
        return;
    case 4:
        kind.create(name, false);
        return;
    case 5:
        if (variants.size() > 4)
            qxVariantKinds::of(*variant).remove(variant->name);
        return;
    case 6:
        if (!qxVariantKinds::of(*variant).find(name))
            variant->name = name;
        return;
    case 7:
        osg::setName(scene.root().child(unsigned(below(6))).node(), qxText::toUtf8(someName()));
        return;
    case 8:
    case 9:
        return editVariant(*variant);
    default:
        return editSet(*oneOf(qxVariants::_variantSets));
    }
}

TEST_F(RegistryLintTest, AfterAnyEditsTheFindingsAreThoseOfTheDocument)
{
    EXPECT_EQ(found(), "");
    int changes = 0;
    for (int round = 0; round < 500 && !HasFailure(); ++round) {
        lint.work(0); // Edits come at any time.
        lint.takeChange();
        const QString before = textsOf(lint.all()).join('\n');
        edit();
        const QString now = found();
        ASSERT_EQ(now.toStdString(), foundInDocument().toStdString()) << round;
        EXPECT_TRUE(lint.takeChange() || now == before) << round;
        changes += now != before;
        for (const qxVariantSet *set : qxVariants::_variantSets) {
            qxFindings ofSet = lint.all();
            ofSet.erase(std::remove_if(
                            ofSet.begin(), ofSet.end(),
                            [set](const qxFinding &each) { return each.place.set != set->name; }),
                        ofSet.end());
            ASSERT_EQ(textsOf(lint.ofSet(set->name)), textsOf(ofSet));
        }
    }
    EXPECT_GT(changes, 150);
}

TEST_F(RegistryLintTest, OfEachCodeAThousandAreListedAndAllAreCounted)
{
    const auto breakSets = [](int first, int count, const char *variant) {
        for (int i = first; i < first + count; ++i) {
            const QString name = QString("Set %1").arg(i);
            qxVariantSet *const set = qxVariants::findVariantSet(name);
            qxStateList &states =
                (set ? set : qxVariants::createVariantSet(name, false, nullptr))->nodeVariants;
            states.clear();
            states.add(variant, QString::number(i));
        }
    };
    const auto counts = [this] {
        finish();
        int listed = 0;
        int more = 0;
        for (const qxFinding &each : lint.all()) {
            listed += each.code == qxCode::NoSuchVariant;
            more += each.code == qxCode::NoSuchVariant ? each.more : 0;
        }
        return std::make_pair(listed, more);
    };
    breakSets(0, 1500, "Gone");
    EXPECT_EQ(counts(), std::make_pair(1000, 500));
    EXPECT_EQ(lint.ofSet("Set 1400").size(), 1);
    breakSets(0, 700, "Wheels"); // Others take their places.
    EXPECT_EQ(counts(), std::make_pair(800, 0));
    EXPECT_EQ(lint.ofSet("Set 1400").size(), 1);
}
