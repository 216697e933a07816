#include "Rename/qxDocumentRename.h"
#include "Rename/qxScriptLiterals.h"
#include "qxDocumentXml.h"

#include <gtest/gtest.h>

namespace {

/// A document in which everything is called "A" that can be.
qxDocument allCalledA()
{
    qxDocument document = qxDocumentXml::read(R"(<Variants>
        <VariantGroup name="A"><VariantSet name="A" default-viewpoint="A">
          <Script>findNode("A"); findMaterial('A')
h.addGeometry(findNode("S"), "A"); h.addMaterial(m, "A"); h.addView(viewpoint=u'A')
selectVariantSet(name = r"A"); qxVariants.activateCapturedVariantSet("A", ); getVariantSets("A")
getVariantStates("node", "A"); getVariantStates("light", "A"); findNodePath("R/A/B")
print("A" "B"); my.findNode("A"); "see A"; "AB" # "A"</Script>
          <NodeVariantRef ref="A" state="A"/><TransformRef ref="A" state="A"/>
          <MaterialVariantRef ref="A" state="A"/><LightVariantRef ref="A" state="!Enable"/>
          <ViewpointRef ref="A"/><OverlayRef ref="A" state="A"/><AnimationRef ref="A"/>
          <GeometryRef ref="A"/><TargetName name="A"/>
          <MaterialSnapshot nodePath="A/x/A" materialName="A"/>
          <MaterialSnapshot nodePath="AA" materialName="x"/>
        </VariantSet></VariantGroup>
        <NodeVariant name="A" base="A"><Default ref="A"/><State name="!All"/><State name="A"/></NodeVariant>
        <MaterialVariant name="A" base="A"><Default ref="A"/><State name="A"/></MaterialVariant>
        <LightVariant name="A" base="A"><State name="!Enable"/></LightVariant>
        <OverlayVariant name="A" base="A"><Default ref="A"/><State name="A"/></OverlayVariant>
        <TransformVariant name="A" base="A"><Default ref="A"/><State name="A"/></TransformVariant>
      </Variants>)");
    document.settle();
    return document;
}

struct Case {
    qxRenameRequest request;
    int script; ///< how many places of the script change
    int changed; ///< how many places in all
};

void PrintTo(const Case &each, std::ostream *out)
{
    *out << "thing " << each.request.thing << ' '
         << (each.request.kind ? each.request.kind->word.latin1() : "");
}

} // namespace

class RenameTest : public testing::TestWithParam<Case> {};

TEST_P(RenameTest, ChangesTheNamesOfTheThingAndNoOthers)
{
    const qxDocument before = allCalledA();
    qxDocument after = before;
    qxRenameRequest request = GetParam().request;
    request.before = "A";
    request.after = "New \"one\"";
    ASSERT_TRUE(qxDocumentRename::isKnown(before, request));
    ASSERT_EQ(qxDocumentRename::flawOf(before, request), "");
    const qxRenameImpact impact = qxDocumentRename::apply(after, request);
    EXPECT_EQ(impact.changed.size(), std::size_t(GetParam().changed));
    QStringList left;
    for (const qxRenameNote &each : impact.left)
        left += each.place;
    EXPECT_EQ(left.removeDuplicates(), 0) << left.join('\n').toStdString();
    const QString &script = after.sets[0].script.text;
    EXPECT_EQ(script.count("New \\\"one\\\"") + script.count("New \"one\"'"), GetParam().script)
        << script.toStdString();
    // Every change is told, and nothing else differs: back again it is the same document.
    std::swap(request.before, request.after);
    if (request.owner == "A" && request.thing == qxRenameRequest::Variant)
        request.owner = request.before;
    qxDocumentRename::apply(after, request);
    after.sets[0].script.text = before.sets[0].script.text;
    EXPECT_EQ(qxDocumentXml::write(after), qxDocumentXml::write(before));
}

INSTANTIATE_TEST_SUITE_P(
    All, RenameTest,
    testing::Values(Case{{qxRenameRequest::Group, nullptr, "", "", ""}, 1, 2},
                    Case{{qxRenameRequest::Set, nullptr, "", "", ""}, 2, 3},
                    Case{{qxRenameRequest::Variant, &qxVariantKinds::node, "", "", ""}, 1, 3},
                    Case{{qxRenameRequest::Variant, &qxVariantKinds::light, "", "", ""}, 1, 3},
                    Case{{qxRenameRequest::Variant, &qxVariantKinds::transform, "", "", ""}, 0, 2},
                    Case{{qxRenameRequest::Option, &qxVariantKinds::node, "A", "", ""}, 0, 3},
                    Case{{qxRenameRequest::Option, &qxVariantKinds::overlay, "A", "", ""}, 0, 3},
                    // Bases of three kinds, a state of one in three places, two lists, a path.
                    Case{{qxRenameRequest::Node, nullptr, "", "", ""}, 3, 12},
                    Case{{qxRenameRequest::Overlay, nullptr, "", "", ""}, 0, 4},
                    Case{{qxRenameRequest::Material, nullptr, "", "", ""}, 2, 7},
                    Case{{qxRenameRequest::Viewpoint, nullptr, "", "", ""}, 1, 3},
                    Case{{qxRenameRequest::TransformState, nullptr, "", "", ""}, 0, 3},
                    Case{{qxRenameRequest::TransformState, nullptr, "A", "", ""}, 0, 3}));

TEST(RenameFlawTest, NamesThatCannotBeGivenAreRefused)
{
    const struct {
        qxRenameRequest request;
        const char *flaw;
    } cases[] = {
        {{qxRenameRequest::Set, nullptr, "", "A", ""}, "the new name is empty"},
        {{qxRenameRequest::Set, nullptr, "", "A", "A"}, "it is called so already"},
        {{qxRenameRequest::Node, nullptr, "", "A", "!x"},
         "a name that begins with \"!\" would be taken for an action"},
        {{qxRenameRequest::Node, nullptr, "", "A", "x/y"},
         "\"/\" in the name of a node would look like a step of a path"},
        {{qxRenameRequest::Option, &qxVariantKinds::node, "A", "!All", "All"},
         "\"!All\" is an action, and has this name in every variant"},
        {{qxRenameRequest::Material, nullptr, "", "A", "x"}, "\"x\" is taken: set \"A\", snapshot"},
        {{qxRenameRequest::Node, nullptr, "", "A", "x"}, "\"x\" is taken: set \"A\", snapshot"},
        {{qxRenameRequest::Set, nullptr, "", "A", "!x"}, ""},
    };
    const qxDocument document = allCalledA();
    for (const auto &each : cases)
        EXPECT_EQ(qxDocumentRename::flawOf(document, each.request).toStdString(), each.flaw);
    EXPECT_FALSE(
        qxDocumentRename::isKnown(document, {qxRenameRequest::Node, nullptr, "", "a", "b"}));
}

TEST(ScriptLiteralsTest, TextsAreToldByTheCallThatTheyAreAnArgumentOf)
{
    using Named = qxScriptNamed;
    const struct {
        const char *script;
        Named named;
        const char *text;
        const char *of;
    } cases[] = {
        {"findNode('a b')", Named::Node, "a b", ""},
        {"findNode(\n  \"Tür\"  # comment\n)", Named::Node, "Tür", ""},
        {"findNode('''a''')", Named::Node, "a", ""},
        {"findNode(r'a\\b')", Named::Node, "a\\b", ""},
        {"findNode('a\\x20')", Named::Nothing, "a\\x20", ""},
        {"findNode(b'a')", Named::Nothing, "a", ""},
        {"findNode(f'a')", Named::Nothing, "a", ""},
        {"findNode('a' + x)", Named::Nothing, "a", ""},
        {"findNode(x or 'a')", Named::Nothing, "a", ""},
        {"findNode(['a'])", Named::Nothing, "a", ""},
        {"findNode(*x, 'a')", Named::Nothing, "a", ""},
        {"findNode(path='a')", Named::Nothing, "a", ""},
        {"findNode(name == 'a')", Named::Nothing, "a", ""},
        {"def findNode(name='a')", Named::Nothing, "a", ""},
        {"x.findNode('a')", Named::Nothing, "a", ""},
        {"__main__.findNode('a')", Named::Node, "a", ""},
        {"# findNode('b')\nfindNode('a')", Named::Node, "a", ""},
        {"selectVariantSet(excludeViewpoint=True, name='a')", Named::Set, "a", ""},
        {"createVariantSet(x, 'a')", Named::Group, "a", ""},
        {"getVariantStates('light', 'a')", Named::Variant, "a", "light"},
        {"h.addGeometry(findNode('S'), state='a')", Named::NodeState, "a", "S"},
        {"addGeometry(n, 'a')", Named::Nothing, "a", ""},
        {"findNode('a", Named::Nothing, "a", ""},
    };
    for (const auto &each : cases) {
        SCOPED_TRACE(each.script);
        const std::vector<qxScriptLiteral> texts =
            qxScriptLiterals::of(QString::fromUtf8(each.script));
        ASSERT_FALSE(texts.empty());
        EXPECT_EQ(int(texts.back().named), int(each.named));
        if (each.named != Named::Nothing) {
            EXPECT_EQ(texts.back().text, QString::fromUtf8(each.text));
            EXPECT_EQ(texts.back().of, QString::fromUtf8(each.of));
        }
    }
    EXPECT_EQ(qxScriptLiterals::of("a\n'''b\nc'''\n'd'")[1].line, 4);
}

TEST(ScriptLiteralsTest, NamesAreQuotedAsTheirPlaceWas)
{
    EXPECT_EQ(qxScriptLiterals::quoted("'a'", "it's"), "'it\\'s'");
    EXPECT_EQ(qxScriptLiterals::quoted("uR\"a\"", "b"), "uR\"b\"");
    EXPECT_EQ(qxScriptLiterals::quoted("r\"a\"", "b\\"), "\"b\\\\\"");
    EXPECT_EQ(qxScriptLiterals::quoted("'''a'''", "b"), "'''b'''");
}
