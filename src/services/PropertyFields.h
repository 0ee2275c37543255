// The inside of a struct that holds the properties of a .def file: a field for each row, empty at first, and
// `SetDefaults`. The including file defines PROPERTY_ROWS as the path of the .def file. Rows that are CUSTOM
// keep their state elsewhere. No include guard: every such struct expands it.
#define PROPERTY(kind, name, fallback, flags, doc) kind name{};
#define CUSTOM(kind, name, fallback, flags, doc)
#define INDEXED(kind, name, fallback, limit, doc) Indexed<kind, limit> name;
#include PROPERTY_ROWS
#undef PROPERTY
#undef INDEXED

/// Sets every field to the default of its row.
void SetDefaults() {
#define PROPERTY(kind, name, fallback, flags, doc) name = kind{fallback};
#define INDEXED(kind, name, fallback, limit, doc) name.Fill(kind{fallback});
#include PROPERTY_ROWS
#undef PROPERTY
#undef CUSTOM
#undef INDEXED
}
#undef PROPERTY_ROWS
