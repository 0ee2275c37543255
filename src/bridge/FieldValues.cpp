#include "bridge/FieldValues.h"

namespace ostrel::bridge {

namespace {

struct FieldWriter {
    JsonWriter& writer;

    void operator()(std::monostate) const { writer.Null(); }
    void operator()(const Text& text) const { writer.String(text); }
    void operator()(const Flag& flag) const { writer.Flag(flag); }
    void operator()(const Long& number) const { writer.Whole(number); }
    template <class Element>
    void operator()(const std::vector<Element>& elements) const {
        writer.BeginArray();
        for (const Element& element : elements) (*this)(element);
        writer.EndArray();
    }
    void operator()(const ColourRun& run) const {
        writer.BeginArray();
        for (const Long number : run) writer.Whole(number);
        writer.EndArray();
    }
};

} // namespace

void Write(JsonWriter& writer, const FieldValue& value) { std::visit(FieldWriter{writer}, value); }

void Write(JsonWriter& writer, const Fields& fields) {
    writer.BeginObject();
    for (const Field& field : fields) {
        writer.Key(field.name);
        Write(writer, field.value);
    }
    writer.EndObject();
}

} // namespace ostrel::bridge
