#pragma once

#include "HostFixture.h"
#include "TestFiles.h"

/// The scene that Tests/Data/Checks/clean.xml belongs to.
class CheckScene : public HostFixture {
protected:
    CheckScene()
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

    static QByteArray cleanDocument() { return bytesOf(testData("Checks/clean.xml")); }
};
