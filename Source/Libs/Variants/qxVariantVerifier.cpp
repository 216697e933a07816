#include "qxVariantVerifier.h"

#include "Internal/Registry/qxDeferredDeletion.h"
#include "qxMaterialVariant.h"
#include "qxNodeVariant.h"
#include "qxVariantKinds.h"
#include "qxVariantSet.h"
#include "qxVariants.h"

#include "qxFindCache.h"
#include "qxForecast.h"
#include "qxNames.h"

#include <OpenSG/OSGSwitch.h>
#include <OpenSG/OSGSwitchMaterial.h>

#include <QHash>
#include <QSet>

#include <cstdio>

const QString VariantSetType = QStringLiteral("VariantSet");
const QString NodeVariantType = QStringLiteral("NodeVariant");
const QString KeloNodeVariantType = QStringLiteral("KeloNodeVariant");
const QString MaterialVariantType = QStringLiteral("MaterialVariant");
const QString KeloMaterialVariantType = QStringLiteral("KeloMaterialVariant");

namespace {

typedef QSet<QString> Names;

/// How many entries each object of the report has, and one for itself.
std::vector<int> weights()
{
    std::vector<int> all;
    for (const qxVariantSet *set : qxVariants::_variantSets)
        all.push_back(1
                      + int((set->*qxVariantKinds::node.states).size()
                            + (set->*qxVariantKinds::material.states).size()));
    for (const qxNodeVariant *variant : qxVariants::_nodeVariants)
        all.push_back(1 + int(variant->options.size()));
    for (const qxMaterialVariant *variant : qxVariants::_materialVariants)
        all.push_back(1 + int(variant->options.size()));
    return all;
}

} // namespace

/// The names of the options of variants, each variant's gathered when it is first asked for.
class qxVariantVerifier::OptionNames {
public:
    bool contain(const qxVariant &variant, const QString &state)
    {
        auto known = m_names.find(&variant);
        if (known == m_names.end()) {
            known = m_names.insert(&variant, Names());
            for (const qxVariantOption &option : variant.options)
                known->insert(option.name);
        }
        return !state.isEmpty() && known->contains(state);
    }

private:
    QHash<const qxVariant *, Names> m_names;
};

/// Writes the lines of one object: its errors, and that it is valid when there were none.
class qxVariantVerifier::Subject {
public:
    Subject(qxVariantVerifier &verifier, const QString &type, const QString &name,
            const QString &object = QString())
        : m_verifier(verifier), m_type(type), m_name(name), m_object(object)
    {
    }

    void error(const QString &state, const char *message) { error(m_object, state, message); }
    void error(const QString &object, const QString &state, const char *message)
    {
        m_isValid = false;
        m_verifier.writeError(m_type, m_name, object, state, message);
    }
    void finish()
    {
        if (m_isValid)
            m_verifier.writeInfo(m_type, m_name, m_object, QString(), "valid");
    }

    /// The set's references to variants of one kind.
    void checkReferences(const qxVariantSet &set, const qxVariantKind &kind, OptionNames &options,
                         const char *noVariant, const char *noState)
    {
        for (const qxVariantState &each : set.*kind.states) {
            const qxVariant *const variant = kind.find(each.variant);
            if (!variant)
                error(each.variant, QString(), noVariant);
            else if (!options.contain(*variant, each.state))
                error(each.variant, each.state, noState);
        }
    }

    /// The options of a variant whose scene object passes the test for their names.
    template <class Test>
    void checkOptions(const qxVariant &variant, const Test &isKnown, const char *empty,
                      const char *unknown)
    {
        for (const qxVariantOption &option : variant.options) {
            if (option.name.isEmpty())
                error(QString(), empty);
            else if (!isKnown(option.name))
                error(option.name, unknown);
        }
    }

private:
    qxVariantVerifier &m_verifier;
    const QString m_type;
    const QString m_name;
    const QString m_object;
    bool m_isValid = true;
};

qxVariantVerifier::qxVariantVerifier() : qxVariantVerifier(qxShare()) {}

qxVariantVerifier::qxVariantVerifier(const qxShare &share) : m_share(share), m_stream(&m_file)
{
    m_stream.setCodec("UTF-8");
}

bool qxVariantVerifier::verify(const QString &fileName)
{
    m_file.setFileName(fileName);
    if (!m_file.open(QIODevice::WriteOnly | QIODevice::Truncate))
        return false;
    m_stream.resetStatus();
    const bool isDone = runChecks();
    m_stream.flush();
    const bool isWritten = m_file.flush() && m_stream.status() == QTextStream::Ok;
    m_file.close();
    return isDone && isWritten;
}

bool qxVariantVerifier::runChecks()
{
    try {
        verifyVariantSets();
        verifyNodeVariants();
        verifyMaterialVariants();
        return true;
    } catch (...) {
        return false;
    }
}

template <class List, class Check>
void qxVariantVerifier::checkShare(const List &list, std::size_t before, const Check &check) const
{
    const qxShare::Parts parts = m_share.of(weights());
    for (auto *each : list) {
        if (parts.contain(before++))
            check(*each);
    }
}

void qxVariantVerifier::verifyVariantSets()
{
    OptionNames options;
    checkShare(qxVariants::_variantSets, 0,
               [&](qxVariantSet &set) { verifyVariantSet(set, options); });
}

void qxVariantVerifier::verifyVariantSet(qxVariantSet &set, OptionNames &options)
{
    Subject subject(*this, VariantSetType, set.name);
    subject.checkReferences(set, qxVariantKinds::node, options, "node variant not found",
                            "requested state not found in node variant");
    subject.checkReferences(set, qxVariantKinds::material, options, "material variant not found",
                            "requested state not found in material variant");
    subject.finish();
}

void qxVariantVerifier::verifyNodeVariants()
{
    const qxFindCache cache(!qxVariants::_nodeVariants.empty());
    checkShare(qxVariants::_nodeVariants, qxVariants::_variantSets.size(),
               [this](qxNodeVariant &variant) { verifyNodeVariant(variant); });
}

void qxVariantVerifier::verifyNodeVariant(qxNodeVariant &variant)
{
    Subject subject(*this, NodeVariantType, variant.name, variant.nodeName);
    const qxNodePtr node = qxNames::findNode(variant.nodeName);
    if (node == osg::NullFC)
        return subject.error(QString(), "switch-node not found");

    qxStateSurvey survey;
    const auto isKnown = [&](const QString &state) {
        return survey.isNamed(qxStateRules::node, qxSceneObject(node), state);
    };
    const QString &standard = variant.defaultState;
    const bool isSwitch = osg::SwitchPtr::dcast(node->getCore()) != osg::NullFC;
    if (!isSwitch && !standard.isEmpty() && !isKnown(standard))
        return subject.error(QString(), "node is not a switch-node and has illegal default value");
    if (isSwitch && !standard.isEmpty() && !variant.find(standard))
        subject.error(standard, "default node state not found in node variant");
    else if (isSwitch && !standard.isEmpty() && !isKnown(standard))
        subject.error(standard, "default node state not found in switch node");
    subject.checkOptions(variant, isKnown, "empty state in node variant",
                         "node state not found in switch node");
    subject.finish();
}

void qxVariantVerifier::verifyMaterialVariants()
{
    checkShare(qxVariants::_materialVariants,
               qxVariants::_variantSets.size() + qxVariants::_nodeVariants.size(),
               [this](qxMaterialVariant &variant) { verifyMaterialVariant(variant); });
}

void qxVariantVerifier::verifyMaterialVariant(qxMaterialVariant &variant)
{
    Subject subject(*this, MaterialVariantType, variant.name, variant.switchMaterialName);
    const osg::MaterialPtr material = qxNames::findMaterial(variant.switchMaterialName);
    if (material == osg::NullFC)
        return subject.error(QString(), "switch-material not found");
    if (osg::SwitchMaterialPtr::dcast(material) == osg::NullFC)
        return subject.error(QString(), "material is not a switch-material");

    qxStateSurvey survey;
    const auto isKnown = [&](const QString &state) {
        return survey.isNamed(qxStateRules::material, qxSceneObject(material), state);
    };
    const QString &standard = variant.defaultState;
    if (!standard.isEmpty() && !variant.find(standard))
        return subject.error(standard, "default material state not found in material variant");
    if (!standard.isEmpty() && !isKnown(standard))
        return subject.error(standard, "default material state not found in switch material");
    subject.checkOptions(variant, isKnown, "empty state in material variant",
                         "material state not found in switch material");
    subject.finish();
}

void qxVariantVerifier::writeError(const QString &type, const QString &a, const QString &b,
                                   const QString &c, const char *message)
{
    ++m_errors;
    report({QStringLiteral("Error"), type, a, b, c, QString::fromUtf8(message)});
}

void qxVariantVerifier::writeInfo(const QString &type, const QString &a, const QString &b,
                                  const QString &c, const char *message)
{
    report({QStringLiteral("Info"), type, a, b, c, QString::fromUtf8(message)});
}

void qxVariantVerifier::report(const QStringList &columns)
{
    const QString line = columns.join(QLatin1Char(',')) + QLatin1Char('\n');
    if (m_file.isOpen())
        m_stream << line;
    std::fputs(line.toUtf8().constData(), stdout);
}

bool qxVariantVerifier::verifyKelo()
{
    const qxNamedList<qxVariantSet>::Walk walk(qxVariants::_variantSets);
    for (qxVariantSet *set : qxVariants::_variantSets) {
        const qxDeferredDeletion deferred;
        set->select(false, false);
        set->selectDefault();
    }
    return true;
}
