#pragma once

/// The connection to other sessions that show the same scene.
class qxConnector {
public:
    /// The one of the process; never null.
    static qxConnector *the();

    ///@{
    /// Whether selections of variants are sent to connected sessions; false at start.
    bool syncVariants() const { return m_syncVariants; }
    void setSyncVariants(bool sync) { m_syncVariants = sync; }
    ///@}

private:
    bool m_syncVariants = false;
};
