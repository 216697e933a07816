#pragma once

#include <functional>

class QWidget;
class qxDockWindowManager;
class qxMessage;

/// Sends notifications by name from the code that changes something to its listeners.
///
/// Everything runs on the user-interface thread. A call runs the callbacks of its name and the
/// listeners of all names one after the other, in the order of their registration. Callbacks may
/// register and unregister others during a call; an unregistered one no longer runs, a new one runs
/// from the next call on.
class qxController {
public:
    /// Receives the calls of one name; what it adds to the message the caller can read.
    typedef void (*Callback)(qxMessage &message);
    /// Receives every call: its name, its message (null for a call without one) and its flag.
    typedef std::function<void(const char *name, qxMessage *message, int flag)> Listener;

    /// Announces `name` without data; callbacks receive an empty message. `flag` 1 asks views to
    /// update at once, 0 allows them to wait until the host is idle.
    static void call(const char *name, int flag);
    /// Announces `name` with the data of `message`; callbacks may add entries as a reply.
    static void call(const char *name, qxMessage &message, int flag);

    /// Runs `callback` on every call of `name`; registering the same pair twice has no effect.
    static void addCB(const char *name, Callback callback);
    /// Unregisters a callback of addCB; an unknown pair is ignored.
    static void subCB(const char *name, Callback callback);

    /// `listener` receives every call until removeListener gets the returned id.
    static int addListener(const Listener &listener);
    /// Unregisters a listener; an unknown id is ignored.
    static void removeListener(int id);

    /// Requests a new picture; with `everything` also what is cached between frames is rebuilt.
    static void updateRender(bool everything);

    /// The host is busy from a call with true until the matching call with false; extra calls with
    /// false are ignored. `cursor` shows a busy mouse pointer; both calls of a pair must have the
    /// same value.
    static void setBusy(bool busy, bool cursor);

    /// The application's window, null when there is none.
    static QWidget *getMainWindow();
    /// Never null.
    static qxDockWindowManager *getDockWindowManager();
};
