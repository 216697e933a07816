#pragma once

/// Prints every notification of the host's controller with its fields while it lives.
class qxTrace {
public:
    qxTrace();
    qxTrace(const qxTrace &) = delete;
    ~qxTrace();

private:
    int m_listener;
};
