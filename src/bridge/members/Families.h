#pragma once

#include <vector>

#include "bridge/Members.h"

namespace ostrel::bridge {

// The rows of the members, a family a file.

std::vector<Member> TextMembers();
std::vector<Member> ElementMembers();
std::vector<Member> TableMembers();
std::vector<Member> PageMembers();
std::vector<Member> TagMembers();
std::vector<Member> ColourMembers();
std::vector<Member> FileMembers();
std::vector<Member> SettingsMembers();
std::vector<Member> BrowserMembers();
std::vector<Member> ProgressMembers();
std::vector<Member> HelpMembers();
std::vector<Member> HelpServiceMembers();
std::vector<Member> DialogMembers();
std::vector<Member> ToolbarMembers();
std::vector<Member> MessageMembers();

} // namespace ostrel::bridge
