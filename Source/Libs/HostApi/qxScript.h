#pragma once

#include <string>

/// Runs texts in the host's scripting language. Texts are UTF-8; null ones do nothing, errors go to
/// the log and end no more than the text that they are in.
///
/// Scripts may lead to further scripts, up to 32 inside each other. Going deeper is an error that
/// ends them all.
class qxScript {
public:
    /// Runs the script of a user.
    static void run(const char *script);
    /// Runs a script that the application composed, without an entry in the undo stack. With
    /// `synchronise` true it is also sent to connected sessions.
    static void executeNUS(const char *script, bool synchronise);
    /// What printing the value of `expression` gives, without the line break at its end; empty
    /// after an error. Like executeNUS it makes no entry in the undo stack.
    static std::string executeNUSR(const char *expression);
};
