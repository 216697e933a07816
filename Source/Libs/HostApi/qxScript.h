#pragma once

/// Runs texts in the host's scripting language. Texts are UTF-8; errors go to the log.
class qxScript {
public:
    /// Runs the script of a user.
    static void run(const char *script);
    /// Runs a script that the application composed, without an entry in the undo stack. With
    /// `synchronise` true it is also sent to connected sessions.
    static void executeNUS(const char *script, bool synchronise);
};
