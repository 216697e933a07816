#include "qxSession.h"

#include "qxVariantReader.h"
#include "qxVariantWriter.h"
#include "qxVariants.h"

#include "qxLog.h"
#include "qxMessage.h"
#include "qxOutput.h"

namespace {

/// Counts the error lines of a scope: the reader reports through the log and returns nothing.
class qxErrorCount {
public:
    qxErrorCount()
        : m_listener(qxLog::addListener(
            [this](qxLog::Level level, const std::string &) { m_errors += level == qxLog::Error; }))
    {
    }
    qxErrorCount(const qxErrorCount &) = delete;
    ~qxErrorCount() { qxLog::removeListener(m_listener); }

    int errors() const { return m_errors; }

private:
    int m_errors = 0;
    int m_listener;
};

bool isRegistryEmpty()
{
    return qxVariants::_nodeVariants.empty() && qxVariants::_materialVariants.empty()
        && qxVariants::_lightVariants.empty() && qxVariants::_overlayVariants.empty()
        && qxVariants::_transformVariants.empty() && qxVariants::_variantSets.empty()
        && qxVariants::_variantGroups.empty();
}

} // namespace

qxSession::qxSession(bool trace)
{
    if (trace)
        m_trace = std::make_unique<qxTrace>();
}

bool qxSession::open(const QString &path)
{
    if (!openScene(path))
        return false;
    return m_file.variantsDocument().isEmpty() || readDocument(m_file.variantsDocument());
}

bool qxSession::openScene(const QString &path)
{
    m_host.clearScene();
    if (m_file.load(path)) {
        for (const QString &warning : m_file.warnings())
            qxLog::warning("%s", warning.toUtf8().constData());
        return true;
    }
    qxOutput::error(m_file.errorString());
    return false;
}

bool qxSession::readDocument(const QByteArray &xml)
{
    qxMessage none;
    qxVariants::clearAll(none);
    const qxErrorCount count;
    qxVariantReader().read(xml.constData());
    if (count.errors() == 0)
        return true;
    qxOutput::error(QStringLiteral("the variants document cannot be read"));
    return false;
}

bool qxSession::save(const QString &path)
{
    if (!isRegistryEmpty() || !m_file.variantsDocument().isEmpty())
        m_file.setVariantsDocument(qxVariantWriter().write());
    if (m_file.save(path))
        return true;
    qxOutput::error(m_file.errorString());
    return false;
}
