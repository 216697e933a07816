#pragma once

/// Whether the host is busy, see qxController::setBusy.
class qxBusy {
public:
    static bool isBusy();
};
