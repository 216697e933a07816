#include "qxOverlayVariant.h"
#include "qxVariantSet.h"

#include "DocumentFixture.h"

namespace {

class OverlayRepairTest : public DocumentFixture {
protected:
    /// Reads one set with these references; returns them as they are afterwards.
    std::string repaired(const QByteArray &references, const QByteArray &variants = QByteArray())
    {
        notifications.clear();
        readInside(variants + "<VariantSet name=\"S\">" + references + "</VariantSet>");
        std::string text;
        for (const qxVariantState &each : qxVariants::findVariantSet("S")->overlayVariants)
            text += (each.variant + "=" + each.state + " ").toStdString();
        return text;
    }
};

} // namespace

TEST_F(OverlayRepairTest, AListOfShownOverlaysHidesTheOthers)
{
    scene.addOverlaySwitch("Signs", {"Neither", "Nor"}); // A switch between overlays is none.
    for (const char *overlay : {"Logo", "Stop", "Go"})
        scene.addOverlay(overlay);
    EXPECT_EQ(repaired("<OverlayRef ref=\"Logo\"/><OverlayRef ref=\"Gone\"/>"),
              "Logo=!Enable Gone=!Enable Stop=!Disable Go=!Disable ");
    EXPECT_EQ(heard("overlayVariantAdded").size(), 4u);
    ASSERT_TRUE(qxVariants::findOverlayVariant("Stop"));
    EXPECT_EQ(qxVariants::findOverlayVariant("Stop")->overlayName, "Stop");
    EXPECT_EQ(repaired("<OverlayRef ref=\"Logo\"/>"), "Logo=!Enable Stop=!Disable Go=!Disable ");
    EXPECT_TRUE(heard("overlayVariantAdded").empty());
}

TEST_F(OverlayRepairTest, OneNewReferenceMakesTheWholeSetNew)
{
    scene.addOverlay("Logo");
    scene.addOverlay("Info");
    EXPECT_EQ(repaired("<OverlayRef ref=\"Old\"/><OverlayRef ref=\"New\" state=\"!Toggle\"/>"),
              "Old=!Enable New=!Toggle ");

    const QByteArray four = "<OverlayVariant name=\"Signs\"><State name=\"1\"/><State name=\"2\"/>"
                            "<State name=\"3\"/><State name=\"4\"/></OverlayVariant>";
    EXPECT_EQ(repaired("<OverlayRef ref=\"Signs\"/><OverlayRef ref=\"Old\"/>", four),
              "Signs= Old=!Enable ");
}

TEST_F(OverlayRepairTest, ASetWithoutOverlaysStaysWithoutThem)
{
    scene.addOverlay("Logo");
    EXPECT_EQ(repaired("<ViewpointRef ref=\"Front\"/>"), "");
}
