#include "support/TestPlatform.h"

namespace iceline::test {

namespace {

template <class Value>
std::optional<Value> take(std::deque<Value>& queue) {
    if (queue.empty())
        return std::nullopt;
    Value value = queue.front();
    queue.pop_front();
    return value;
}

} // namespace

Answer TestPlatform::ask(const Message& message) {
    messages.push_back(message);
    return take(answers).value_or(message.buttons == Buttons::YesNo ? Answer::Yes : Answer::Ok);
}

std::optional<std::string> TestPlatform::chooseFile(const std::string&, const std::vector<FileFilter>&) {
    return take(chosen).value_or(std::nullopt);
}

std::optional<std::string> TestPlatform::chooseFolder(const std::string&) {
    return take(chosen).value_or(std::nullopt);
}

bool TestPlatform::showProgress(const Progress& progress) {
    progressShown.push_back(progress);
    return stopAfter < 0 || static_cast<int>(progressShown.size()) <= stopAfter;
}

std::vector<std::string> TestPlatform::said() const {
    std::vector<std::string> texts;
    for (const Message& message : messages)
        texts.push_back(message.text);
    return texts;
}

} // namespace iceline::test
