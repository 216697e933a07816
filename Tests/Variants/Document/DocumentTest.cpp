#include "qxVariantGroup.h"
#include "qxVariantSetPtr.h"

#include "../Registry/OneOfEach.h"
#include "DocumentFixture.h"
#include "TestFiles.h"
#include "qxTestPaths.h"

#include <QBuffer>
#include <QDir>
#include <QImage>

#include <sys/resource.h>

#include <array>

class DocumentTest : public DocumentFixture {
protected:
    QDomElement elementOf(const QByteArray &xml)
    {
        EXPECT_TRUE(m_document.setContent(xml));
        return m_document.documentElement();
    }

    /// Reads a set with that preview, which is kept; what goes to standard output meanwhile.
    std::string printed(const QByteArray &base64)
    {
        testing::internal::CaptureStdout();
        readInside("<VariantSet name='S'><Preview><![CDATA[" + base64
                   + "]]></Preview></VariantSet>");
        EXPECT_EQ(qxVariants::findVariantSet("S")->getPreview(), QByteArray::fromBase64(base64));
        return testing::internal::GetCapturedStdout();
    }

private:
    QDomDocument m_document;
};

static QByteArray contentOf(const QString &fileName)
{
    return bytesOf(QStringLiteral(QX_TEST_DATA "/Documents/") + fileName);
}

/// In three sets each of the five has values of its own, inclusions and clipping alike.
static qxVariantSet *addSet(const char *name, qxVariantGroup *group,
                            const std::array<bool, 5> &flags)
{
    qxVariantSet *const set = qxVariants::createVariantSet(name, false, group);
    set->setInclInfo(flags[0], flags[1], flags[2], flags[3], flags[4]);
    std::array<bool, 5> included{};
    set->getInclInfo(included[0], included[1], included[2], included[3], included[4]);
    EXPECT_EQ(included, flags);
    qxVariantSetPtr(set).addClippingPlane({1.5f, -2, 0.1f}, {0.25f, 0.5f, 1e-7f}, flags[0],
                                          flags[1], flags[2], flags[3], flags[4]);
    return set;
}

static void addVariants()
{
    qxNodeVariant *const wheels = qxVariants::createNodeVariant("Wheels", false);
    wheels->nodeName = "WheelSwitch";
    wheels->defaultState = "Steel";
    wheels->add("Steel", "Ctrl+1");
    wheels->add("Alloy", "");
    qxVariants::createMaterialVariant("Paint", false)->switchMaterialName = "PaintSwitch";
    qxVariants::createLightVariant("Lamp", false)->lightName = "LampNode";
    qxVariants::createOverlayVariant("Logo", false)->overlayName = "LogoOverlay";
    qxVariants::createTransformVariant("Door", false)->nodeName = "DoorNode";
}

TEST_F(DocumentTest, EveryFieldHasItsPlace)
{
    addSet("Plain", nullptr, {false, true, false, true, true});
    qxVariantGroup *const cars = qxVariants::createVariantGroup("Cars", false, false);
    cars->comment = "all of them";
    qxVariants::createVariantGroup("Empty", false, true);
    fillEverything(*addSet("Sport", cars, {true, false, true, false, true}));
    addSet("Family", cars, {false, false, true, true, false});
    addVariants();
    const QByteArray document = written();
    EXPECT_EQ(document, contentOf("complete.xml"));
    EXPECT_TRUE(notifications.entries().empty());
}

// A document X.xml is read and written; the result is X.written.xml, or the document itself.
TEST_F(DocumentTest, DocumentsOfAllAgesAreRead)
{
    const QDir documents(QStringLiteral(QX_TEST_DATA "/Documents"));
    const QStringList all = documents.entryList({"*.xml"}, QDir::Files);
    EXPECT_GE(all.filter(".written.").size(), 2);
    for (const QString &fileName : all) {
        if (fileName.contains(".written."))
            continue;
        host.clearScene();
        for (const char *overlay : {"Logo", "Info", "Stamp", "Exit"})
            scene.addOverlay(overlay);
        scene.addOverlaySwitch("Neither", {"This", "That"}); // A switch between overlays is none.
        const QString result = QString(fileName).replace(".xml", ".written.xml");
        read(contentOf(fileName));
        EXPECT_EQ(written(), contentOf(all.contains(result) ? result : fileName))
            << fileName.toStdString();
    }
}

TEST_F(DocumentTest, ReadingTwiceReplacesSetsAndKeepsVariants)
{
    read(contentOf("complete.xml"));
    const QByteArray once = written();
    qxNodeVariant *const wheels = qxVariants::findNodeVariant("Wheels");
    wheels->add("Extra", "");
    qxVariants::findVariantSet("Sport")->addViewpoint("Extra");
    read(contentOf("complete.xml"));
    EXPECT_EQ(qxVariants::findNodeVariant("Wheels"), wheels);
    EXPECT_EQ(written(), once);

    const qxVariantSet &set = *qxVariants::findVariantSet("Sport");
    EXPECT_EQ(set.key, Qt::Key_F5);
    EXPECT_EQ(set.modifiers, Qt::ControlModifier | Qt::ShiftModifier);
    EXPECT_EQ(wheels->options.at(0).key, Qt::Key_1);
    EXPECT_EQ(wheels->options.at(0).modifiers, Qt::ControlModifier);
}

TEST_F(DocumentTest, TheHostHearsOfADocumentOnceAtTheEnd)
{
    const Lines changes{"1 lightVariantChanged",     "1 nodeVariantChanged",
                        "1 materialVariantChanged",  "1 overlayVariantChanged",
                        "1 transformVariantChanged", "1 variantSetChanged",
                        "1 variantGroupChanged"};
    readInside("<Unknown/>text<!-- comment -->");
    EXPECT_EQ(notifications.lines(), changes);
    EXPECT_EQ(written(),
              "<?xml version=\"1.0\" encoding=\"utf-8\"?>\n"
              "<!DOCTYPE variants>\n"
              "<Variants/>\n");

    notifications.clear();
    read(contentOf("complete.xml"));
    EXPECT_EQ(notifications.lines(), changes);
}

TEST_F(DocumentTest, OverlayVariantsThatOldSetsNeedAreAnnounced)
{
    scene.addOverlay("Stop");
    readInside("<VariantSet name='S'><OverlayRef ref='Go'/></VariantSet>");
    EXPECT_EQ(heard("overlayVariantAdded").size(), 2u);
}

TEST_F(DocumentTest, ASingleSetGetsANameOfItsOwnWhenItReplacesNone)
{
    qxVariantSet *const known = qxVariants::createVariantSet("Sport", false, nullptr);
    QDomElement element = elementOf("<VariantSet name='Sport' comment='new'/>");
    qxVariantSet *const other = qxVariantReader::readVariantSet(element, false);
    EXPECT_EQ(qxVariants::findVariantSet("Sport"), known);
    EXPECT_NE(other->name, "Sport");
    EXPECT_EQ(other->comment, "new");
    element.removeAttribute("name");
    EXPECT_EQ(qxVariantReader::readVariantSet(element, false), nullptr);
}

TEST_F(DocumentTest, ASingleVariantIsReadForThreeKindsOnly)
{
    const auto readOne = [this](const QByteArray &kind) {
        QDomElement element = elementOf("<" + kind + "Variant name='One'/>");
        return qxVariantReader::readVariant(element);
    };
    const qxVariant *const node = readOne("Node");
    const qxVariant *const material = readOne("Material");
    const qxVariant *const light = readOne("Light");
    EXPECT_TRUE(node && node == qxVariants::findNodeVariant("One"));
    EXPECT_TRUE(material && material == qxVariants::findMaterialVariant("One"));
    EXPECT_TRUE(light && light == qxVariants::findLightVariant("One"));
    EXPECT_EQ(readOne("Overlay"), nullptr);
    EXPECT_EQ(readOne("Transform"), nullptr);
}

TEST_F(DocumentTest, AnyPreviewIsKeptAShortOnePrintedAndOneThatIsTooLargeNotDecoded)
{
    EXPECT_EQ(printed(QByteArray(79, 'A')), "\t" + std::string(79, 'A') + "\n");
    EXPECT_EQ(printed(QByteArray(80, 'A')), "");

    QBuffer huge;
    QImage(16000, 16000, QImage::Format_Mono).save(&huge, "PNG");
    rusage before, after;
    getrusage(RUSAGE_SELF, &before);
    printed(huge.data().toBase64());
    getrusage(RUSAGE_SELF, &after);
    EXPECT_LT(after.ru_maxrss - before.ru_maxrss, 200000) << "kilobytes; decoded: a million";
}

// Linear work only: a search per element would take minutes.
TEST_F(DocumentTest, VeryManyElementsAreRead)
{
    const int count = 100000;
    QByteArray references, states, sets;
    for (int i = 0; i < count; ++i) {
        const QByteArray number = QByteArray::number(i);
        references += "<NodeVariantRef ref='" + number + "'/><GeometryRef ref='" + number + "'/>";
        states += "<State name='" + number + "'/>";
        sets += "<VariantSet name='" + number + "'/>";
    }
    const QByteArray twins = QByteArray(states).replace("/>", "><Hotkey>F1</Hotkey></State>");
    readInside("<VariantSet name='S'>" + references + "</VariantSet><NodeVariant name='V'>" + states
               + twins + "</NodeVariant><VariantGroup name='G'>" + sets + "</VariantGroup>");
    qxVariantSet &set = *qxVariants::findVariantSet("S");
    const std::vector<qxVariantOption> &options = qxVariants::findNodeVariant("V")->options;
    const qxVariantGroup::Sets &members = qxVariants::findVariantGroup("G")->sets;
    EXPECT_EQ(set.nodeVariants.size(), std::size_t(count));
    EXPECT_EQ(set.geometries.size(), std::size_t(count));
    ASSERT_EQ(options.size(), std::size_t(count));
    ASSERT_EQ(members.size(), std::size_t(count));
    EXPECT_EQ(options.back().name, "99999");
    EXPECT_EQ(options.back().shortcut, "") << "the first one of a name counts";
    EXPECT_EQ(members.back()->name, "99999");
    EXPECT_EQ(members.back()->group->name, "G");
}
