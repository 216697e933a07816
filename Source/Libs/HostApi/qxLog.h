#pragma once

#include <functional>
#include <string>

/// The host's log: lines for the user of the application.
///
/// Formats are those of printf, texts are UTF-8. A line break at the end of a text is optional.
class qxLog {
public:
    /// How much a line matters.
    enum Level { Info, Warning, Error };
    /// Receives each line without its line break.
    typedef std::function<void(Level level, const std::string &line)> Listener;

    ///@{
    /// Writes a text to the log, formatted at once. An empty one is an empty line.
    static void info(const char *format, ...) __attribute__((format(printf, 1, 2)));
    static void warning(const char *format, ...) __attribute__((format(printf, 1, 2)));
    static void error(const char *format, ...) __attribute__((format(printf, 1, 2)));
    ///@}

    /// `listener` receives every line until removeListener gets the returned id.
    static int addListener(const Listener &listener);
    /// Unregisters a listener; an unknown id is ignored.
    static void removeListener(int id);
};
