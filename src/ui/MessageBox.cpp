#include "ui/MessageBox.h"

#include <algorithm>
#include <array>

namespace ostrel {

namespace {

using enum MessageAnswer;

std::vector<MessageAnswer> AnswersOf(MessageButtons buttons) {
    switch (buttons) {
    case MessageButtons::OkCancel:
        return {Ok, Cancel};
    case MessageButtons::AbortRetryIgnore:
        return {Abort, Retry, Ignore};
    case MessageButtons::YesNoCancel:
        return {Yes, No, Cancel};
    case MessageButtons::YesNo:
        return {Yes, No};
    case MessageButtons::RetryCancel:
        return {Retry, Cancel};
    default:
        return {Ok};
    }
}

MessageAnswer HarmlessOf(const std::vector<MessageAnswer>& answers) {
    for (const MessageAnswer answer : {No, Cancel, Ok})
        if (std::find(answers.begin(), answers.end(), answer) != answers.end()) return answer;
    return Abort;
}

/// The words of the buttons, by the answer that they give.
constexpr std::array<std::string_view, 8> Words{"", "OK", "Cancel", "Abort", "Retry", "Ignore", "Yes", "No"};

} // namespace

MessageBox::MessageBox(MessageKind messageKind, Text message, Text title, MessageButtons buttons)
    : Form("MessageBox", std::move(title)), kind(messageKind), text(std::move(message)) {
    const std::vector<MessageAnswer> answers = AnswersOf(buttons);
    answer_ = HarmlessOf(answers);
    for (const MessageAnswer answer : answers) {
        const std::string_view word = Words[static_cast<std::size_t>(answer)];
        const Purpose purpose = answer == answer_ ? Purpose::Cancel : Purpose::None;
        buttons_.push_back(std::make_unique<Button>(*this, word, Text(word), purpose, [this, answer] {
            answer_ = answer;
            Close();
        }));
    }
}

MessageAnswer MessageBox::Ask(Platform& platform) {
    Show(platform);
    return answer_;
}

FieldValue MessageBox::Look(std::string_view field) const {
    return field == "text" ? FieldValue(text) : Form::Look(field);
}

} // namespace ostrel
