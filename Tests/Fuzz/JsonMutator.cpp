// Changes a scene file as JSON, so that most inputs get past the parser: values are exchanged for
// others of the file, for words and for edges of numbers; members and entries come, go and move.

#include <nlohmann/json.hpp>

#include <algorithm>
#include <cstring>
#include <random>
#include <vector>

extern "C" std::size_t LLVMFuzzerMutate(unsigned char *data, std::size_t size, std::size_t most);

namespace {

typedef nlohmann::ordered_json Json;

class Mutation {
public:
    Mutation(Json &json, unsigned seed) : m_json(json), m_random(seed) {}

    void run()
    {
        const int steps = 1 + below(3);
        for (int i = 0; i < steps; ++i)
            step();
    }

private:
    int below(std::size_t count) { return int(m_random() % std::max<std::size_t>(count, 1)); }

    void collect(Json &json)
    {
        m_all.push_back(&json);
        if (json.is_structured()) {
            for (Json &each : json)
                collect(each);
        }
    }

    Json &any()
    {
        m_all.clear();
        collect(m_json);
        return *m_all[std::size_t(below(m_all.size()))];
    }

    Json edge(const Json &old)
    {
        const auto number = old.is_number_unsigned() ? old.get<std::uint32_t>() : 0;
        const Json edges[] = {
            number + 1, number - 1, 0,  1,  -1,  2,   nullptr, true, false, 1e39,          -0.0,
            1e-40,      2147483647, "", -2, 0.5, 255, "\x1b",  5126, 5121,  Json::array(), "Lid"};
        return edges[below(std::size(edges))];
    }

    void changeLeaf(Json &json)
    {
        if (json.is_string() && below(2) == 0) {
            auto &text = json.get_ref<std::string &>();
            const std::size_t size = text.size();
            text.resize(size + 16);
            text.resize(LLVMFuzzerMutate(reinterpret_cast<unsigned char *>(text.data()), size,
                                         text.size()));
        } else if (json.is_number_integer() && below(2) == 0)
            json = below(8);
        else
            json = edge(json);
    }

    /// An entry goes, is exchanged for another, or is taken over from elsewhere.
    void changeEntries(Json &json, const Json &from)
    {
        const auto any = [&] { return std::next(json.begin(), below(json.size())); };
        const int kind = json.empty() ? 2 : below(7);
        if (kind == 0)
            json.erase(any());
        else if (kind == 1)
            std::swap(*any(), *any());
        else if (json.is_array() && kind == 2)
            json.push_back(json.empty() ? from : Json(*any()));
        else if (json.is_array())
            *any() = from;
        else if (from.is_object() && !from.empty()) {
            const auto member = std::next(from.begin(), below(from.size()));
            json[member.key()] = member.value();
        }
    }

    void step()
    {
        Json &json = any();
        const Json from = any();
        if (below(10) == 0)
            json = from;
        else if (json.is_structured())
            changeEntries(json, from);
        else
            changeLeaf(json);
    }

    Json &m_json;
    std::mt19937 m_random;
    std::vector<Json *> m_all;
};

} // namespace

extern "C" std::size_t LLVMFuzzerCustomMutator(unsigned char *data, std::size_t size,
                                               std::size_t most, unsigned seed)
{
    Json json = seed % 16 == 0 ? Json() : Json::parse(data, data + size, nullptr, false);
    if (!json.is_object())
        return LLVMFuzzerMutate(data, size, most);
    Mutation(json, seed).run();
    const std::string text = json.dump(-1, ' ', false, Json::error_handler_t::replace);
    if (text.size() > most)
        return LLVMFuzzerMutate(data, size, most);
    std::memcpy(data, text.data(), text.size());
    return text.size();
}
