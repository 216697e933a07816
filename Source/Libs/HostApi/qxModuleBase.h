#pragma once

class qxMessage;

/// The bus between the host's modules: messages with numeric codes instead of names.
class qxModuleBase {
public:
    /// Materials of the scene were added, removed or replaced.
    static constexpr unsigned int MaterialsChanged = 0x10000;

    /// Delivers `message` to every module; with `later` true it waits until control returns to the
    /// host's event loop.
    static void sendMessage(qxMessage &message, bool later);
};
