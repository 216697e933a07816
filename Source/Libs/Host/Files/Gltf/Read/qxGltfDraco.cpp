#include "Files/Gltf/Read/qxGltfDraco.h"

#include "Files/Gltf/Common/qxGltfJson.h"
#include "Files/qxMemoryBudget.h"

#include <QScopeGuard>

#include <draco/compression/mesh/mesh_edgebreaker_decoder.h>
#include <draco/compression/mesh/mesh_sequential_decoder.h>
#include <draco/core/varint_decoding.h>
#include <draco/mesh/mesh.h>

namespace {

/// While connectivity is decoded, estimated from above.
const qint64 _bytesPerFace = 150;
const qint64 _bytesPerFaceAndSeam = 50;
const qint64 _bytesPerVertex = 50;
/// Of each component of an attribute, which is there as an integer, as it is used, and while it is
/// predicted.
const qint64 _bytesPerComponent = 16;
const qint64 _bytesPerValue = 16;

/// Whatever the size of its data, the library may take seconds and 256 MB more for one of them.
const int _mostAttributes = 16;

const quint16 _version = DRACO_BITSTREAM_VERSION(2, 2); // that of the extension

/// How large the mesh will be, as the head of its data says before anything is decoded.
struct Head {
    quint32 vertices = 0;
    quint32 faces = 0;
    quint8 seams = 0; ///< attributes that are not continuous over the surface

    bool readSequential(draco::DecoderBuffer from)
    {
        return draco::DecodeVarint(&faces, &from) && draco::DecodeVarint(&vertices, &from);
    }
    bool readEdgebreaker(draco::DecoderBuffer from)
    {
        return draco::DecodeVarint(&vertices, &from) && draco::DecodeVarint(&faces, &from)
            && from.Decode(&seams);
    }
};

/// The memory that decoding takes. The library asks for as much as the data say: what it is about
/// to ask for is taken from the budget first.
class Payment {
public:
    Payment(qxMemoryBudget &budget, qint64 &taken) : m_budget(budget), m_taken(taken) {}

    bool payFor(const Head &head)
    {
        return pay(head.faces, _bytesPerFace + head.seams * _bytesPerFaceAndSeam)
            && pay(head.vertices, _bytesPerVertex);
    }
    bool payFor(const draco::PointCloud &points)
    {
        if (points.num_attributes() > _mostAttributes) {
            m_reason = qxFileText::tr("it is too large");
            return false;
        }
        qint64 size = 0;
        for (int i = 0; i < points.num_attributes(); ++i)
            size += points.attribute(i)->num_components() * _bytesPerComponent + _bytesPerValue;
        return pay(points.num_points(), size);
    }
    /// Why something was too large; empty when nothing was.
    const QString &reason() const { return m_reason; }

private:
    bool pay(qint64 count, qint64 size)
    {
        try {
            m_budget.take(count, size);
            m_taken += count * size;
            return true;
        } catch (const qxGltfError &error) { // the library does not know exceptions
            m_reason = error.reason();
            return false;
        }
    }

    qxMemoryBudget &m_budget;
    qint64 &m_taken;
    QString m_reason;
};

class SequentialDecoder : public draco::MeshSequentialDecoder {
public:
    explicit SequentialDecoder(Payment &payment) : m_payment(payment) {}

protected:
    bool DecodeGeometryData() override
    {
        Head head;
        return bitstream_version() == _version && head.readSequential(*buffer())
            && m_payment.payFor(head) && MeshSequentialDecoder::DecodeGeometryData();
    }
    bool DecodeAllAttributes() override
    {
        return m_payment.payFor(*point_cloud()) && MeshSequentialDecoder::DecodeAllAttributes();
    }

private:
    Payment &m_payment;
};

class EdgebreakerDecoder : public draco::MeshEdgebreakerDecoder {
public:
    explicit EdgebreakerDecoder(Payment &payment) : m_payment(payment) {}

protected:
    bool DecodeGeometryData() override
    {
        Head head;
        return bitstream_version() == _version && head.readEdgebreaker(*buffer())
            && m_payment.payFor(head) && MeshEdgebreakerDecoder::DecodeGeometryData();
    }
    bool DecodeAllAttributes() override
    {
        return m_payment.payFor(*point_cloud()) && MeshEdgebreakerDecoder::DecodeAllAttributes();
    }

private:
    Payment &m_payment;
};

std::unique_ptr<draco::MeshDecoder> decoderFor(draco::DecoderBuffer from, Payment &payment)
{
    draco::DracoHeader header;
    if (!draco::PointCloudDecoder::DecodeHeader(&from, &header).ok()
        || header.encoder_type != draco::TRIANGULAR_MESH)
        return nullptr;
    if (header.encoder_method == draco::MESH_SEQUENTIAL_ENCODING)
        return std::make_unique<SequentialDecoder>(payment);
    if (header.encoder_method == draco::MESH_EDGEBREAKER_ENCODING)
        return std::make_unique<EdgebreakerDecoder>(payment);
    return nullptr;
}

template <class Value>
std::vector<float> converted(const draco::PointAttribute &attribute, std::uint32_t points)
{
    const std::size_t components = attribute.num_components();
    std::vector<Value> one(components);
    std::vector<float> all;
    all.reserve(points * components);
    for (draco::PointIndex i(0); i < points; ++i) {
        const draco::AttributeValueIndex from = attribute.mapped_index(i);
        if (from.value() >= attribute.size()
            || !attribute.ConvertValue(from, std::int8_t(components), one.data()))
            throw qxGltfError(qxFileText::tr("its compressed data are damaged"));
        for (const Value value : one)
            all.push_back(float(value));
    }
    return all;
}

} // namespace

qxGltfDraco::qxGltfDraco(const QByteArray &bytes, qxMemoryBudget &budget)
    : m_mesh(std::make_unique<draco::Mesh>()), m_budget(budget)
{
    auto giveBack = qScopeGuard([this] { m_budget.giveBack(m_taken); });
    Payment payment(m_budget, m_taken);
    draco::DecoderBuffer from;
    from.Init(bytes.constData(), std::size_t(bytes.size()));
    const std::unique_ptr<draco::MeshDecoder> decoder = decoderFor(from, payment);
    const bool isWhole =
        decoder && decoder->Decode(draco::DecoderOptions(), &from, m_mesh.get()).ok();
    if (!payment.reason().isEmpty())
        throw qxGltfError(payment.reason());
    if (!isWhole)
        throw qxGltfError(qxFileText::tr("its compressed data are damaged"));
    giveBack.dismiss();
}

qxGltfDraco::~qxGltfDraco()
{
    m_budget.giveBack(m_taken);
}

qint64 qxGltfDraco::vertices() const
{
    return m_mesh->num_points();
}

qint64 qxGltfDraco::corners() const
{
    return 3 * qint64(m_mesh->num_faces());
}

std::vector<std::uint32_t> qxGltfDraco::indices() const
{
    std::vector<std::uint32_t> all;
    all.reserve(std::size_t(corners()));
    for (draco::FaceIndex i(0); i < m_mesh->num_faces(); ++i) {
        for (const draco::PointIndex &corner : m_mesh->face(i))
            all.push_back(corner.value());
    }
    return all;
}

bool qxGltfDraco::has(unsigned int id, int components) const
{
    const draco::PointAttribute *const attribute = m_mesh->GetAttributeByUniqueId(id);
    return attribute && attribute->num_components() == components;
}

std::vector<float> qxGltfDraco::values(unsigned int id, float scale) const
{
    const draco::PointAttribute &attribute = *m_mesh->GetAttributeByUniqueId(id);
    if (attribute.data_type() == draco::DT_FLOAT32)
        return converted<float>(attribute, m_mesh->num_points());
    // As integers, whatever the library takes for their range.
    std::vector<float> all = converted<std::int32_t>(attribute, m_mesh->num_points());
    for (float &value : all)
        value *= scale;
    return all;
}
