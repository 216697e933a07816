#pragma once

#include "HostFixture.h"

#include <QByteArray>

/// The scene that Tests/Data/Checks/clean.xml belongs to.
class CheckScene : public HostFixture {
protected:
    CheckScene();

    static QByteArray cleanDocument();
};
