#pragma once

#include "bridge/JsonText.h"
#include "ui/Fields.h"

namespace ostrel::bridge {

// What a control or a child shows, as JSON.

void Write(JsonWriter& writer, const FieldValue& value);
void Write(JsonWriter& writer, const Fields& fields);

} // namespace ostrel::bridge
