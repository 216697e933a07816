// Changes a variants document as XML, so that most inputs get past the parser: elements and
// attributes come, go and move, and take names and values from elsewhere in the document.

#include <QDomDocument>

#include <algorithm>
#include <cstring>
#include <random>
#include <vector>

extern "C" std::size_t LLVMFuzzerMutate(unsigned char *data, std::size_t size, std::size_t most);

namespace {

class Mutation {
public:
    Mutation(QDomDocument &document, unsigned seed) : m_random(seed)
    {
        collect(document.documentElement());
    }

    void run()
    {
        const int steps = 1 + below(3);
        for (int i = 0; i < steps; ++i)
            step(any(), any());
    }

private:
    int below(std::size_t count) { return int(m_random() % std::max<std::size_t>(count, 1)); }

    void collect(const QDomElement &element)
    {
        m_all.push_back(element);
        for (auto child = element.firstChildElement(); !child.isNull();
             child = child.nextSiblingElement())
            collect(child);
    }

    QDomElement any() { return m_all[std::size_t(below(m_all.size()))]; }

    QDomAttr anyAttribute(const QDomElement &element)
    {
        const QDomNamedNodeMap all = element.attributes();
        return all.item(below(std::size_t(all.count()))).toAttr();
    }

    void changeValue(QDomAttr attribute)
    {
        QByteArray bytes = attribute.value().toUtf8();
        const int size = bytes.size();
        bytes.resize(size + 8);
        bytes.resize(int(LLVMFuzzerMutate(reinterpret_cast<unsigned char *>(bytes.data()),
                                          std::size_t(size), std::size_t(bytes.size()))));
        attribute.setValue(QString::fromUtf8(bytes).remove(QChar(0)));
    }

    /// What is asked of the root's parent, or of an attribute that is not there, does nothing.
    void step(QDomElement element, const QDomElement &other)
    {
        const QDomAttr own = anyAttribute(element);
        const QDomAttr others = anyAttribute(other);
        QDomNode parent = element.parentNode().toElement();
        switch (below(8)) {
        case 0:
            element.appendChild(other.cloneNode());
            break;
        case 1:
            parent.insertBefore(other.cloneNode(), element);
            break;
        case 2:
            parent.removeChild(element);
            break;
        case 3:
            element.setTagName(other.tagName());
            break;
        case 4:
            element.firstChild().setNodeValue(QString());
            element.appendChild(element.ownerDocument().createTextNode(other.text()));
            break;
        case 5:
            changeValue(own);
            break;
        default:
            if (!others.isNull()) // beside the own ones or in place of one
                element.setAttribute(own.isNull() || below(2) == 0 ? others.name() : own.name(),
                                     others.value());
        }
    }

    std::mt19937 m_random;
    std::vector<QDomElement> m_all;
};

} // namespace

extern "C" std::size_t LLVMFuzzerCustomMutator(unsigned char *data, std::size_t size,
                                               std::size_t most, unsigned seed)
{
    QDomDocument document;
    const auto input = QByteArray::fromRawData(reinterpret_cast<char *>(data), int(size));
    // Entities are for the target alone: here they could take all the memory.
    if (seed % 4 == 0 || input.contains("<!ENTITY") || input.count('<') > 1000
        || !document.setContent(input))
        return LLVMFuzzerMutate(data, size, most);
    Mutation(document, seed).run();
    const QByteArray text = document.toByteArray(-1);
    if (std::size_t(text.size()) > most)
        return LLVMFuzzerMutate(data, size, most);
    std::memcpy(data, text.constData(), std::size_t(text.size()));
    return std::size_t(text.size());
}
