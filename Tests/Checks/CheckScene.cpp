#include "CheckScene.h"

#include "TestFiles.h"
#include "qxTestPaths.h"

CheckScene::CheckScene()
{
    scene.addSwitch("Wheels", {"Steel", "Alloy"});
    scene.add("Lamp");
    scene.addTransformSwitch("Chair", 2);
    scene.addSwitchMaterial("Paint", {"Red", "Blue"});
    scene.addLight("Sun");
    scene.addOverlaySwitch("Signs", {"Stop", "Go"});
    scene.addPoses("Door", {"Shut", "Open"});
    scene.add("Trim", scene.add("Body"));
    scene.add("Lid", scene.add("Hinge", scene.add("Lid")));
    scene.addViewpoint("Front");
    scene.addViewpoint("Back");
    scene.setClips({"Spin"});
}

QByteArray CheckScene::cleanDocument()
{
    return bytesOf(QStringLiteral(QX_TEST_DATA "/Checks/clean.xml"));
}
