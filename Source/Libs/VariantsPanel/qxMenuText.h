#pragma once

#include <QString>

/// The text of a menu's item for a name: menus would take "&" for the mark of a key.
inline QString qxMenuText(QString name)
{
    return name.replace('&', QLatin1String("&&"));
}
