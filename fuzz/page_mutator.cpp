#include "actions/action.h"
#include "document/encoding.h"
#include "document/objects.h"
#include "document/page_file.h"
#include "document/record_fields.h"
#include "fuzz/support.h"

#include <algorithm>
#include <cstring>
#include <random>

extern "C" std::size_t LLVMFuzzerMutate(std::uint8_t *data, std::size_t size, std::size_t maxSize);

// Mutates page files as what they are: single values, list entries and whole objects. Bytes alone would mostly break
// the lengths in front of everything.
namespace corvanta {

namespace {

using Random = std::minstd_rand;

constexpr std::size_t nowhere = static_cast<std::size_t>(-1);
constexpr std::int16_t oddNumbers[] = {0, 1, -1, 2, 127, 255, 256, 8404, 32766, 32767, -32767, -32768};
constexpr std::int16_t actionCodes[] = {0,   1,   4,   6,   8,   9,   10,  12,  13,  500, 501, 504,
                                        505, 506, 507, 508, 509, 510, 511, 512, 520, 521, 522, 523};
constexpr const char *oddTexts[] = {"",       "\t",       "..\\X.BMP",  "C:\\A\\B.ODS", "a b.c d",
                                    "@name@", "<script>", "\"'&<>\\",   "\x81\x8d",     "&H",
                                    "Submit", "NUL",      "https://a/b"};

// Runs the record descriptions over a page and changes the value at one place; counts the places on the way.
class ValueMutator {
public:
    ValueMutator(Random &source, std::size_t place) : random(source), target(place) {}
    std::size_t seen = 0;

    void int16(const char *, std::int16_t &v)
    {
        if (hit())
            v = static_cast<std::int16_t>(random() % 2 ? v + static_cast<int>(random() % 21) - 10 : odd());
    }
    void int32(const char *, std::int32_t &v)
    {
        if (hit())
            v = static_cast<std::int32_t>(random() << 1) ^ odd();
    }
    void truth(const char *, bool &v)
    {
        if (hit())
            v = !v;
    }
    void single(const char *, float &v)
    {
        if (hit())
            v = static_cast<float>(odd()) / (random() % 2 ? 1.0F : 7.0F);
    }
    void text(const char *, std::string &v)
    {
        if (!hit())
            return;
        if (random() % 3 == 0) {
            v = oddTexts[random() % std::size(oddTexts)];
            return;
        }
        std::string longer = v + std::string(64, '\0');
        longer.resize(LLVMFuzzerMutate(reinterpret_cast<std::uint8_t *>(longer.data()), v.size(), longer.size()));
        v = longer;
    }
    void action(const char *name, std::string &v)
    {
        if (random() % 2 == 0 || target == nowhere)
            return text(name, v);
        if (hit())
            v = actionOf(2);
    }
    void optionalText(const char *name, std::string &v) { text(name, v); }
    template <class Body> void group(const char *, Body body) { body(*this); }
    template <class T, class Each> void counted(const char *, std::vector<T> &entries, std::size_t limit, Each each)
    {
        if (hit())
            changeList(entries, limit);
        for (T &entry : entries)
            each(*this, entry);
    }
    void plainTexts(const char *name, std::vector<std::string> &entries, std::size_t limit)
    {
        counted(name, entries, limit, [](ValueMutator &m, std::string &entry) { m.text("", entry); });
    }
    template <class T, class Each> void rest(const char *name, std::vector<T> &entries, Each each)
    {
        counted(name, entries, 60, each);
    }
    void gridColumns(std::vector<GridColumn> &columns)
    {
        for (std::size_t i = 0; i + 1 < columns.size(); ++i)
            gridColumnFields(*this, columns[i]);
        if (hit())
            columns.insert(columns.begin(), {"Header\tt.c", odd()});
    }
    bool strictTiming() const { return true; }

private:
    Random &random;
    std::size_t target;

    bool hit() { return seen++ == target; }
    std::int16_t odd() { return oddNumbers[random() % std::size(oddNumbers)]; }
    std::string actionOf(int depth)
    {
        const std::int16_t code = actionCodes[random() % std::size(actionCodes)];
        if (code == action::list && depth > 0) {
            std::vector<ActionEntry> entries(random() % 4);
            for (ActionEntry &entry : entries)
                entry = {actionOf(depth - 1), "status"};
            return encodeActionList(entries);
        }
        Action a{code, {}};
        for (const ActionParameter &parameter : actionParameters(code))
            a.values.push_back(parameter.number ? std::to_string(odd()) : oddTexts[random() % std::size(oddTexts)]);
        return encodeAction(a);
    }
    template <class T> void changeList(std::vector<T> &entries, std::size_t limit)
    {
        const std::size_t place = entries.empty() ? 0 : random() % entries.size();
        if (entries.size() < limit && random() % 2)
            entries.insert(entries.begin() + static_cast<std::ptrdiff_t>(place),
                           entries.empty() ? T{} : T(entries[place]));
        else if (!entries.empty())
            entries.erase(entries.begin() + static_cast<std::ptrdiff_t>(place));
    }
};

void walk(ValueMutator &mutator, Page &p)
{
    headerFields(mutator, p);
    for (std::int16_t i = 0; i < objectCount(p); ++i) {
        ObjectRecord &o = p.objects[static_cast<std::size_t>(i)];
        commonFields(mutator, o);
        const auto kind = kindOf(o.kind);
        if (!kind)
            continue;
        auto frames = kind == Kind::Animation ? framesOf(p, i) : std::vector<Frame>();
        kindTail(mutator, p, *kind, p.ctlindex[static_cast<std::size_t>(i)], frames);
        if (kind == Kind::Animation)
            storeFrames(p, i, std::move(frames));
    }
}

void changeValue(Page &p, Random &random)
{
    ValueMutator counting(random, nowhere);
    walk(counting, p);
    ValueMutator changing(random, random() % counting.seen);
    walk(changing, p);
}

// The objects of a page as bytes, to be put together anew.
std::string rearranged(const Page &p, Random &random)
{
    std::vector<std::string> bodies;
    for (std::int16_t i = 0; i < objectCount(p); ++i)
        bodies.push_back(serialiseObject(p, i));
    std::string head = serialisePage(p);
    std::size_t length = 0;
    for (const std::string &body : bodies)
        length += body.size();
    head.resize(head.size() - length);
    const std::size_t place = bodies.empty() ? 0 : random() % bodies.size();
    switch (random() % 4) {
    case 0: {
        const auto kind = static_cast<std::int16_t>(random() % (lastKind + 2));
        bodies.push_back(encodeString(encodeInt16(kind)));
        break;
    }
    case 1:
        if (!bodies.empty())
            bodies.push_back(bodies[place]);
        break;
    case 2:
        if (!bodies.empty())
            bodies.erase(bodies.begin() + static_cast<std::ptrdiff_t>(place));
        break;
    default: std::shuffle(bodies.begin(), bodies.end(), random);
    }
    for (const std::string &body : bodies)
        head += body;
    return head;
}

} // namespace

} // namespace corvanta

extern "C" std::size_t LLVMFuzzerCustomMutator(std::uint8_t *data, std::size_t size, std::size_t maxSize, unsigned seed)
{
    corvanta::Random random(seed);
    if (random() % 4 == 0)
        return LLVMFuzzerMutate(data, size, maxSize);
    corvanta::Page p = corvanta::pageOf(corvanta::bytesOf(data, size));
    std::string mutated;
    if (random() % 4 == 0) {
        mutated = corvanta::rearranged(p, random);
    } else {
        corvanta::changeValue(p, random);
        mutated = corvanta::serialisePage(p);
    }
    if (mutated.size() > maxSize)
        return LLVMFuzzerMutate(data, size, maxSize);
    std::memcpy(data, mutated.data(), mutated.size());
    return mutated.size();
}
