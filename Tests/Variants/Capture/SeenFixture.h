#pragma once

#include "CaptureFixture.h"

#include <map>

/// What is active and below active nodes, each node by the way to it, which no renaming changes.
/// The environment stands beside the root.
std::vector<std::pair<std::string, osg::NodePtr>> activeNodes();

/// Compares what is seen of a scene before and after captures and selections.
class SeenFixture : public CaptureFixture {
protected:
    typedef std::map<std::string, std::string> Facts;

    /// A switch that is hidden by its variant is also searched for a child called "!Disable".
    void TearDown() override;

    /// Renames what is ambiguous, as a user would let the guard do.
    void settleNames();
    /// Captures the whole scene into a new set; what is seen stays the same meanwhile.
    static Facts capture(const QString &name);
    /// The camera, and a fact for each node and for what it shows.
    static Facts seen();
    /// Everything that was seen is seen again, and nothing that was hidden. What a node shows is
    /// free when it showed nothing then.
    static void expectSeen(const Facts &expected);
};
