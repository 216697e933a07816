#pragma once

class qxMessage;

/// The bus between the host's modules: messages with numeric codes instead of names.
class qxModuleBase {
public:
    /// The materials of the scene changed as a whole: materials came, went or were replaced.
    static constexpr unsigned int MaterialsChanged = 0x10000;

    /// Delivers `message` to every module; with `later` true it waits until control returns to the
    /// host's event loop.
    static void sendMessage(qxMessage &message, bool later);
};
