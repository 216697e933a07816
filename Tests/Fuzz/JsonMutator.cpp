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

    void changeText(std::string &text)
    {
        std::vector<unsigned char> bytes(text.begin(), text.end());
        const std::size_t size = bytes.size();
        bytes.resize(size + 16);
        bytes.resize(LLVMFuzzerMutate(bytes.data(), size, bytes.size()));
        text.assign(bytes.begin(), bytes.end());
    }

    void changeLeaf(Json &json)
    {
        if (json.is_string() && below(2) == 0) {
            std::string text = json;
            changeText(text);
            json = text;
        } else if (json.is_number_integer() && below(2) == 0)
            json = below(8);
        else
            json = edge(json);
    }

    void changeList(Json &list)
    {
        const std::size_t size = list.size();
        const int at = below(size);
        switch (below(5)) {
        case 0:
            list.push_back(size > 0 ? list[std::size_t(at)] : Json(any()));
            break;
        case 1:
            if (size > 0)
                list.erase(std::size_t(at));
            break;
        case 2:
            if (size > 1)
                std::swap(list[std::size_t(at)], list[std::size_t(below(size))]);
            break;
        default:
            changeObject(list);
        }
    }

    /// Takes a member away, or gives one that another object has; of lists an entry's.
    void changeObject(Json &json)
    {
        const Json from = any();
        if (json.is_object() && !json.empty() && below(3) == 0)
            json.erase(std::next(json.begin(), below(json.size())));
        else if (json.is_object() && from.is_object() && !from.empty()) {
            const auto member = std::next(from.begin(), below(from.size()));
            json[member.key()] = member.value();
        } else if (json.is_array() && !json.empty())
            json[std::size_t(below(json.size()))] = from;
    }

    void step()
    {
        Json &json = any();
        const int kind = below(10);
        if (kind == 0)
            json = Json(any());
        else if (json.is_array())
            changeList(json);
        else if (json.is_object())
            changeObject(json);
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
