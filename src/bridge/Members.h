#pragma once

#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "bridge/JsonText.h"
#include "control/OstrelWebHelp.h"

namespace ostrel::bridge {

/// One argument of a member, taken from its row and the member's signature.
struct Argument {
    std::string_view name;
    std::string_view kind;
    /// The member writes it, and the answer returns it in `out`.
    bool out = false;
    /// The place of the argument that counts the elements, or the rows; -1 if there is none.
    int count = -1;
    /// The place of the argument that counts the columns; -1 if there is none.
    int columnCount = -1;
    /// The count is the most that the member may fill in: the array grows to it.
    bool grows = false;
};

/// What a call gave: its result as JSON, and the out arguments as the inside of a JSON object.
struct CallAnswer {
    std::string result = "null";
    std::string out;

    /// Any value that `Write` knows.
    template <class T>
    void Give(const T& value) {
        result.clear();
        JsonWriter writer(result);
        Write(writer, value);
    }
};

/// One member of the component by name.
struct Member {
    std::string_view name;
    std::string_view result; ///< the kind
    /// The doc comment of its declaration in the chief header.
    std::string_view doc;
    std::vector<Argument> arguments;
    /// Calls it. The arguments are an array; a Refusal for one that does not fit, with nothing done.
    void (*call)(const Member&, OstrelWebHelp&, const Json& arguments, CallAnswer&);

    /// Whether it has a result and no arguments, so that `get` can read it.
    bool ReadsLikeProperty() const { return arguments.empty() && result != "none"; }
};

/// Members that belong together.
struct Family {
    std::string_view title;
    std::vector<Member> members;
};

/// All members.
std::span<const Family> Families();
/// The member of that exact name, or null.
const Member* FindMember(std::string_view name);

} // namespace ostrel::bridge
