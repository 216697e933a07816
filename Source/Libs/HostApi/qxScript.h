#pragma once

#include <string>

/// Runs texts in the host's scripting language. Texts are UTF-8; null does nothing. An error goes
/// to the log and ends only its own text.
///
/// Scripts may cause further scripts, nested up to 32 deep. A deeper one is an error that ends them
/// all.
class qxScript {
public:
    /// Runs the script of a user.
    static void run(const char *script);
    /// Runs a script of the application, without an entry in the undo stack. With `synchronise` it
    /// is also sent to connected sessions.
    static void executeNUS(const char *script, bool synchronise);
    /// The value of `expression` as `print` writes it, without the final line break; empty after an
    /// error. Like executeNUS it makes no entry in the undo stack.
    static std::string executeNUSR(const char *expression);
};
