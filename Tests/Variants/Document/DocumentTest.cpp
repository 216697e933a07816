#include "qxLightVariant.h"
#include "qxMaterialVariant.h"
#include "qxNodeVariant.h"
#include "qxOverlayVariant.h"
#include "qxTransformVariant.h"
#include "qxVariantGroup.h"
#include "qxVariantSet.h"

#include "DocumentFixture.h"

#include <QDir>

#include <random>

namespace {

QByteArray contentOf(const QString &fileName)
{
    QFile file(QStringLiteral(QX_TEST_DATA "/Documents/") + fileName);
    EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << file.fileName().toStdString();
    return file.readAll();
}

class DocumentTest : public DocumentFixture {
protected:
    std::string items() { return join(itemsOf(written())); }
    static std::string join(const Lines &lines)
    {
        std::string text;
        for (const std::string &line : lines)
            text += line + "\n";
        return text;
    }
};

void fillSport(qxVariantSet &set)
{
    set.comment = "fast & loud";
    set.defaultViewpoint = "Home";
    set.hotkey = "Ctrl+Shift+F5";
    set.sequentialAnimation = true;
    set.script = QString::fromUtf8("if a < b and b > c:\n\tprint(\"ä]]>\")\n");
    set.setPreview(QByteArray("\0\1\2\3", 4));
    set.addNodeVariant("Wheels", "Alloy");
    set.addNodeVariant("Roof", "!Next (Loop)");
    set.addTransformVariant("Door", "Open");
    set.addMaterialVariant("Paint", "Red");
    set.addLightVariant("Lamp", "!Toggle");
    set.addViewpoint("Front");
    set.addViewpoint("Back");
    set.addOverlayVariant("Logo", "!Enable");
    set.addAnimation("Spin");
    set.addGeometry("Body");
    set.addTargetNodeName("Car");
    set.setInclInfo(true, false, true, false, true);
    set.addMaterialSnapshot("Car/Roof", "Black");
    set.addMaterialSnapshot("Car/Body", "Red");
    set.values["colour"] = "red";
    set.values["Price"] = "12";
}

void fillClipping(qxVariantSet &set)
{
    set.setClippingState(3);
    set.setClippingPlanePositionX(1.5);
    set.setClippingPlanePositionY(-2);
    set.setClippingPlanePositionZ(0.1);
    set.setClippingPlaneNormalX(0.25);
    set.setClippingPlaneNormalY(0.5);
    set.setClippingPlaneNormalZ(1e-7);
    set.setClippingInvert(true);
    set.setClippingHideScene(true);
    set.setClippingShowPlane(false);
    set.setClippingPlaneColorR(0.123456789);
    set.setClippingPlaneColorG(0.375);
    set.setClippingPlaneColorB(1);
    set.setClippingShowGrid(false);
    set.setClippingGridColorR(0.125);
    set.setClippingGridColorG(0.0625);
    set.setClippingGridColorB(0.75);
    set.setClippingShowContour(false);
    set.setClippingContourColorR(0.3125);
    set.setClippingContourColorG(0.4375);
    set.setClippingContourColorB(0.5625);
    set.setClippingContourWidth(7);
}

void fillVariants()
{
    qxNodeVariant *const wheels = qxVariants::createNodeVariant("Wheels", false);
    wheels->nodeName = "WheelSwitch";
    wheels->defaultState = "Steel";
    wheels->add("Steel", "Ctrl+1");
    wheels->add("Alloy", "");
    qxMaterialVariant *const paint = qxVariants::createMaterialVariant("Paint", false);
    paint->switchMaterialName = "PaintSwitch";
    paint->defaultState = "Red";
    paint->add("Red", "");
    qxLightVariant *const lamp = qxVariants::createLightVariant("Lamp", false);
    lamp->lightName = "LampNode";
    lamp->defaultState = "!Enable";
    qxOverlayVariant *const logo = qxVariants::createOverlayVariant("Logo", false);
    logo->overlayName = "LogoOverlay";
    logo->add("!Enable", "");
    qxTransformVariant *const door = qxVariants::createTransformVariant("Door", false);
    door->nodeName = "DoorNode";
    door->defaultState = "Open";
    door->add("Open", "F2");
}

} // namespace

TEST_F(DocumentTest, AnEmptyRegistryIsAnEmptyRoot)
{
    EXPECT_EQ(written(),
              "<?xml version=\"1.0\" encoding=\"utf-8\"?>\n"
              "<!DOCTYPE variants>\n"
              "<Variants/>\n");
}

TEST_F(DocumentTest, EveryFieldHasItsPlace)
{
    qxVariantSet *const plain = qxVariants::createVariantSet("Plain", false, nullptr);
    plain->setInclInfo(false, true, false, true, false);
    qxVariantGroup *const cars = qxVariants::createVariantGroup("Cars", false, false);
    cars->comment = "all of them";
    qxVariants::createVariantGroup("Empty", false, true);
    qxVariantSet *const sport = qxVariants::createVariantSet("Sport", false, cars);
    fillSport(*sport);
    fillClipping(*sport);
    fillVariants();
    notifications.clear();
    EXPECT_EQ(items(), join(itemsOf(contentOf("complete.xml"))));
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
        for (const char *overlay : {"Logo", "Info", "Stamp"})
            scene.addOverlay(overlay);
        const QString result = QString(fileName).replace(".xml", ".written.xml");
        read(contentOf(fileName));
        EXPECT_EQ(items(), join(itemsOf(contentOf(all.contains(result) ? result : fileName))))
            << fileName.toStdString();
    }
}

TEST_F(DocumentTest, ReadingTwiceReplacesSetsAndKeepsVariants)
{
    read(contentOf("complete.xml"));
    const std::string once = items();
    qxNodeVariant *const wheels = qxVariants::findNodeVariant("Wheels");
    wheels->add("Extra", "");
    qxVariants::findVariantSet("Sport")->addViewpoint("Extra");
    read(contentOf("complete.xml"));
    EXPECT_EQ(qxVariants::findNodeVariant("Wheels"), wheels);
    EXPECT_EQ(qxVariants::_variantGroups.size(), 2u);
    EXPECT_EQ(qxVariants::_variantSets.size(), 2u);
    EXPECT_EQ(items(), once);
}

TEST_F(DocumentTest, TheHostHearsOfADocumentOnceAtTheEnd)
{
    readInside("<Unknown/>text<!-- comment -->");
    EXPECT_EQ(notifications.lines(),
              Lines({"1 lightVariantChanged", "1 nodeVariantChanged", "1 materialVariantChanged",
                     "1 overlayVariantChanged", "1 transformVariantChanged", "1 variantSetChanged",
                     "1 variantGroupChanged"}));
    EXPECT_EQ(written().count("\n"), 3);

    const Lines silent = notifications.names();
    notifications.clear();
    read(contentOf("complete.xml"));
    EXPECT_EQ(notifications.names(), silent);
}

TEST_F(DocumentTest, ASingleSetGetsANameOfItsOwnWhenItReplacesNone)
{
    qxVariantSet *const known = qxVariants::createVariantSet("Sport", false, nullptr);
    QDomDocument document;
    document.setContent(QByteArray("<VariantSet name=\"Sport\" comment=\"new\"/>"));
    QDomElement element = document.documentElement();
    qxVariantSet *const other = qxVariantReader::readVariantSet(element, false);
    EXPECT_EQ(qxVariants::findVariantSet("Sport"), known);
    EXPECT_NE(other->name, "Sport");
    EXPECT_EQ(other->comment, "new");
    EXPECT_EQ(qxVariants::_variantSets.size(), 2u);
    element.removeAttribute("name");
    EXPECT_EQ(qxVariantReader::readVariantSet(element, false), nullptr);
}

TEST_F(DocumentTest, ASingleVariantIsReadForThreeKindsOnly)
{
    const auto readOne = [](const char *tag) {
        QDomDocument document;
        QDomElement element = document.createElement(tag);
        element.setAttribute("name", "One");
        return qxVariantReader::readVariant(element);
    };
    const qxVariant *const node = readOne("NodeVariant");
    const qxVariant *const material = readOne("MaterialVariant");
    const qxVariant *const light = readOne("LightVariant");
    EXPECT_TRUE(node && node == qxVariants::findNodeVariant("One"));
    EXPECT_TRUE(material && material == qxVariants::findMaterialVariant("One"));
    EXPECT_TRUE(light && light == qxVariants::findLightVariant("One"));
    EXPECT_EQ(readOne("OverlayVariant"), nullptr);
    EXPECT_EQ(readOne("TransformVariant"), nullptr);
}

TEST_F(DocumentTest, AShortPreviewIsPrintedAndAnyIsKept)
{
    const auto printed = [this](const QByteArray &base64) {
        testing::internal::CaptureStdout();
        readInside("<VariantSet name=\"S\"><Preview><![CDATA[" + base64
                   + "]]></Preview></VariantSet>");
        EXPECT_EQ(qxVariants::findVariantSet("S")->getPreview(), QByteArray::fromBase64(base64));
        return testing::internal::GetCapturedStdout();
    };
    EXPECT_EQ(printed(QByteArray(79, 'A')), "\t" + std::string(79, 'A') + "\n");
    EXPECT_EQ(printed(QByteArray(80, 'A')), "");
}

// Linear work only: a search per reference would take minutes.
TEST_F(DocumentTest, ASetWithAHundredThousandReferencesIsReadInNoTime)
{
    QByteArray content = "<VariantSet name=\"S\">";
    for (int i = 0; i < 100000; ++i) {
        const QByteArray number = QByteArray::number(i);
        content += "<NodeVariantRef ref=\"" + number + "\" state=\"On\"/>";
        content += "<GeometryRef ref=\"" + number + "\"/>";
    }
    readInside(content + "</VariantSet>");
    EXPECT_EQ(qxVariants::findVariantSet("S")->nodeVariants.size(), 100000u);
    EXPECT_EQ(qxVariants::findVariantSet("S")->geometries.size(), 100000u);
}
