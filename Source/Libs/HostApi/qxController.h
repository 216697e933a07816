#pragma once

#include <functional>

class QWidget;
class qxDockWindowManager;
class qxMessage;

/// The host's switchboard: whoever changes something calls it by name, whoever shows it listens.
///
/// Everything runs on the user-interface thread. A call runs the callbacks of its name and the
/// listeners of all names one after the other, in the order of their registration. Callbacks may
/// register and unregister while a call runs; one that is unregistered is not run any more, one
/// that is new is run from the next call on.
class qxController {
public:
    typedef void (*Callback)(qxMessage &message);
    /// Receives every call: its name, its message (null for a call without one) and its flag.
    typedef std::function<void(const char *name, qxMessage *message, int flag)> Listener;

    /// Announces `name` without data; callbacks receive an empty message.
    /// `flag` 1 asks views to follow at once, 0 allows them to wait until the host is idle.
    static void call(const char *name, int flag);
    /// Announces `name` with the data of `message`; callbacks may add entries as a reply.
    static void call(const char *name, qxMessage &message, int flag);

    /// Runs `callback` on every call of `name`; registering the same pair twice has no effect.
    static void addCB(const char *name, Callback callback);
    /// Ends what addCB began; an unknown pair is ignored.
    static void subCB(const char *name, Callback callback);

    /// Hears every call until removeListener is called with the returned id.
    static int addListener(const Listener &listener);
    static void removeListener(int id);

    /// Asks for a new picture; with `everything` also what a picture keeps between frames is
    /// redone.
    static void updateRender(bool everything);

    /// The host is busy from a call with true until as many calls with false; one false too many is
    /// ignored. With `cursor` the mouse pointer says so; both calls of a pair have it the same.
    static void setBusy(bool busy, bool cursor);

    /// The application's window, null when there is none.
    static QWidget *getMainWindow();
    /// Never null.
    static qxDockWindowManager *getDockWindowManager();
};
