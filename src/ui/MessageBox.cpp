#include "ui/MessageBox.h"

#include <algorithm>
#include <array>

namespace ostrel {

namespace {

constexpr Long Ok = 1, Cancel = 2, Abort = 3, Retry = 4, Ignore = 5, Yes = 6, No = 7;
constexpr std::array<std::string_view, 8> Words{"", "OK", "Cancel", "Abort", "Retry", "Ignore", "Yes", "No"};

std::vector<Long> AnswersOf(Long buttons) {
    switch (buttons) {
    case 1:
        return {Ok, Cancel};
    case 2:
        return {Abort, Retry, Ignore};
    case 3:
        return {Yes, No, Cancel};
    case 4:
        return {Yes, No};
    case 5:
        return {Retry, Cancel};
    default:
        return {Ok};
    }
}

Long HarmlessOf(const std::vector<Long>& answers) {
    for (const Long answer : {No, Cancel, Ok})
        if (std::find(answers.begin(), answers.end(), answer) != answers.end()) return answer;
    return Abort;
}

} // namespace

MessageBox::MessageBox(MessageKind messageKind, Text message, Text title, Long buttons)
    : Form("MessageBox", std::move(title)), kind(messageKind), text(std::move(message)) {
    const std::vector<Long> answers = AnswersOf(buttons);
    answer_ = HarmlessOf(answers);
    for (const Long answer : answers) {
        const std::string_view word = Words[static_cast<std::size_t>(answer)];
        buttons_.push_back(std::make_unique<Button>(*this, word, Text(word), [this, answer] {
            answer_ = answer;
            Close();
        }));
    }
}

Long MessageBox::Ask(Platform& platform) {
    Show(platform);
    return answer_;
}

FieldValue MessageBox::Look(std::string_view field) const {
    return field == "text" ? FieldValue(text) : Form::Look(field);
}

} // namespace ostrel
