#pragma once

#include "html/PageScope.h"
#include "text/Array.h"

namespace ostrel::html {

bool PageCreateSimple(const PageScope& scope, const Text& filePath, TextView title, TextView body,
                      Text& error, bool centre);

struct ListContent {
    Long count = 0;
    TextView header, footer;
    const Array<Text>& entries;
    bool ordered = false, space = false;
};
bool PageCreateList(const PageScope& scope, const Text& filePath, TextView title, const ListContent& list,
                    Text& error);

struct Box {
    TextView pageWidth, pageColour, boxColour;
    bool pageCentre = false;
    Long boxWidth = 0;
};
bool PageCreateSimpleBoxed2(const PageScope& scope, const Text& filePath, TextView title, TextView body,
                            const Box& box, Text& error);

} // namespace ostrel::html
