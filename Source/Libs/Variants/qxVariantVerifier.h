#pragma once

#include "qxShare.h"

#include <QFile>
#include <QTextStream>

class qxMaterialVariant;
class qxNodeVariant;
class qxVariantSet;

/// What a line of the report is about; the second column.
extern const QString VariantSetType; ///< "VariantSet"
extern const QString NodeVariantType; ///< "NodeVariant"
extern const QString KeloNodeVariantType; ///< "KeloNodeVariant", reserved
extern const QString MaterialVariantType; ///< "MaterialVariant"
extern const QString KeloMaterialVariantType; ///< "KeloMaterialVariant", reserved

/// Compares the sets, node variants and material variants of the registry with each other and with
/// the scene.
///
/// Each problem, and each object without one, is a line of six columns with commas between: "Error"
/// or "Info", the type, three texts of context, and the message. Nothing is quoted or escaped.
/// Lines go to standard output and, while verify runs, to the report file as well, both in UTF-8.
/// The checks change neither registry nor scene.
class qxVariantVerifier {
public:
    qxVariantVerifier();
    /// Of the sets, the node variants and the material variants, in this order, the checks pass
    /// over those outside of that share. The lines of all shares are those of one verifier.
    explicit qxVariantVerifier(const qxShare &share);
    qxVariantVerifier(const qxVariantVerifier &) = delete;
    qxVariantVerifier &operator=(const qxVariantVerifier &) = delete;

    /// Runs the three checks and writes their lines to the file, in place of what it held. False
    /// when the file cannot be opened or not be written to its end, such as on a full disk, or when
    /// a check throws, with the lines up to there. Errors that the checks find do not count.
    bool verify(const QString &fileName);

    /// Every node and material variant that a set refers to exists and has the requested state.
    void verifyVariantSets();
    /// Every node variant has its node, and the node's children bear the names of its states.
    void verifyNodeVariants();
    /// Every material variant has its switch material with materials of the names of its states.
    void verifyMaterialVariants();

    ///@{
    /// Writes one line; `a`, `b` and `c` are the texts of context and may be empty.
    void writeError(const QString &type, const QString &a, const QString &b, const QString &c,
                    const char *message);
    void writeInfo(const QString &type, const QString &a, const QString &b, const QString &c,
                   const char *message);
    ///@}
    /// How many error lines were written so far.
    int errorCount() const { return m_errors; }

    /// Selects every set without its extras and then its defaults, so that whoever watches sees
    /// each of them at work. Always true.
    bool verifyKelo();

private:
    /// The object that is being checked.
    class Subject;
    class OptionNames;

    bool runChecks();
    /// Calls the check for what belongs to the share. So many objects stand before the list.
    template <class List, class Check>
    void checkShare(const List &list, std::size_t before, const Check &check) const;
    void verifyVariantSet(qxVariantSet &set, OptionNames &options);
    void verifyNodeVariant(qxNodeVariant &variant);
    void verifyMaterialVariant(qxMaterialVariant &variant);
    /// The line to standard output, and to the report while one is open.
    void report(const QStringList &columns);

    const qxShare m_share;
    QFile m_file;
    QTextStream m_stream;
    int m_errors = 0;
};
