#pragma once

#include <functional>
#include <string>

/// The host's log: lines for the user of the application.
///
/// Formats are those of printf, texts are UTF-8. A line break at the end of a text is optional.
class qxLog {
public:
    enum Level { Info, Warning, Error };
    /// Receives each line without its line break.
    typedef std::function<void(Level level, const std::string &line)> Listener;

    static void info(const char *format, ...) __attribute__((format(printf, 1, 2)));
    static void warning(const char *format, ...) __attribute__((format(printf, 1, 2)));
    static void error(const char *format, ...) __attribute__((format(printf, 1, 2)));

    /// `listener` receives every line until removeListener gets the returned id.
    static int addListener(const Listener &listener);
    static void removeListener(int id);
};
