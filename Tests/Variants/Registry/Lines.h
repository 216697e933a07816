#pragma once

#include "NotificationLog.h"

typedef std::vector<std::string> Lines;

/// The notifications as lines: the flag, the name, the fields.
inline Lines linesOf(const NotificationLog &log)
{
    Lines lines;
    for (const Notification &entry : log.entries())
        lines.push_back(std::to_string(entry.flag) + " " + entry.text());
    return lines;
}
