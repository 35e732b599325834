#include "json/page.h"

#include "document/object_file.h"
#include "document/objects.h"
#include "document/page_file.h"
#include "document/record_fields.h"
#include "json/reader.h"
#include "json/writer.h"

#include <algorithm>

namespace corvanta {

namespace {

// The length and the body of an object whose fields are all empty.
constexpr std::size_t smallestObject = 34;

void writeGridColumns(JsonWriter &writer, const Page &p)
{
    const std::vector<GridColumn> columns(p.gridcolumns.begin(), p.gridcolumns.end() - 1);
    writer.rest("gridcolumns", columns,
                [](JsonWriter &item, const GridColumn &column) { gridColumnFields(item, column); });
}

void readGridColumns(JsonReader &reader, Page &p)
{
    reader.counted("gridcolumns", p.gridcolumns, gridColumnLimit,
                   [](JsonReader &item, GridColumn &column) { gridColumnFields(item, column); });
    p.gridcolumns.emplace_back();
}

void writeObject(JsonWriter &writer, const Page &p, std::int16_t index)
{
    const auto i = static_cast<std::size_t>(index);
    writer.int16("kind", p.objects[i].kind);
    commonFields(writer, p.objects[i]);
    const auto kind = kindOf(p.objects[i].kind);
    if (!kind || !kindRow(*kind).hasTail)
        return;
    const auto frames = kind == Kind::Animation ? framesOf(p, index) : std::vector<Frame>();
    writer.group("kindextra", [&](JsonWriter &tail) { kindTail(tail, p, *kind, p.ctlindex[i], frames); });
}

void readTail(JsonReader &reader, Page &p, std::int16_t index, Kind kind)
{
    std::vector<Frame> frames;
    reader.group("kindextra", [&](JsonReader &tail) {
        kindTail(tail, p, kind, p.ctlindex[static_cast<std::size_t>(index)], frames);
    });
    if (kind == Kind::Animation)
        storeFrames(p, index, std::move(frames));
}

void readObject(JsonReader &reader, Page &p)
{
    ObjectRecord record;
    reader.int16("kind", record.kind);
    commonFields(reader, record);
    const auto kind = kindOf(record.kind);
    const std::int16_t index = appendObject(p, std::move(record));
    if (index == noObject)
        reader.refuse("kind", "a page holds at most " + std::to_string(maxTickers) + " tickers");
    if (kind && kindRow(*kind).hasTail)
        readTail(reader, p, index, *kind);
}

// Columns are stored by the Grid objects alone.
void refuseColumnsWithoutGrid(const JsonReader &reader, const Page &p)
{
    const auto isGrid = [](const ObjectRecord &o) { return kindOf(o.kind) == Kind::Grid; };
    if (gridColumnCount(p) > 0 && std::none_of(p.objects.begin(), p.objects.end(), isGrid))
        reader.refuse("gridcolumns", "no Grid object is there to hold the columns");
}

Page objectFromJson(JsonReader &reader)
{
    Page p;
    reader.int16("pgversion", p.pgversion);
    readGridColumns(reader, p);
    reader.group("object", [&](JsonReader &object) { readObject(object, p); });
    refuseColumnsWithoutGrid(reader, p);
    return p;
}

Page wholePageFromJson(JsonReader &reader)
{
    Page p;
    headerFields(reader, p);
    readGridColumns(reader, p);
    reader.items("objects", fileLimit / smallestObject, [&](JsonReader &object) { readObject(object, p); });
    refuseColumnsWithoutGrid(reader, p);
    return p;
}

} // namespace

Json pageJson(const Page &p)
{
    JsonWriter writer;
    headerFields(writer, p);
    writeGridColumns(writer, p);
    Json &objects = writer.out["objects"] = Json::array();
    for (std::int16_t i = 0; i < objectCount(p); ++i) {
        JsonWriter object;
        writeObject(object, p, i);
        objects.push_back(std::move(object.out));
    }
    return std::move(writer.out);
}

Json objectFileJson(const Page &p, std::int16_t version)
{
    JsonWriter writer;
    writer.int16("pgversion", version);
    writeGridColumns(writer, p);
    writer.group("object", [&](JsonWriter &object) { writeObject(object, p, 0); });
    return std::move(writer.out);
}

Page pageFromJson(const Json &json)
{
    JsonReader reader(json, "$");
    Page p = reader.has("object") ? objectFromJson(reader) : wholePageFromJson(reader);
    reader.finish();
    return p;
}

std::string fileFromJson(const Json &json)
{
    const Page p = pageFromJson(json);
    std::string bytes = json.contains("object") ? objectFileText(p, 0) : serialisePage(p);
    if (bytes.size() > fileLimit)
        throw JsonError("$", std::to_string(bytes.size()) + " bytes are more than the " + std::to_string(fileLimit) +
                                 " of a file");
    return bytes;
}

} // namespace corvanta
