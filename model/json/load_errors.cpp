#include "model/json/load_errors.h"

#include <utility>

namespace keydeck {

static std::string JoinLines(const std::vector<std::string>& messages, int moreCount) {
  std::string text;
  for (const std::string& message : messages) {
    if (!text.empty())
      text += '\n';
    text += message;
  }
  if (moreCount > 0)
    text += "\n... and " + std::to_string(moreCount) + " more";
  return text;
}

ModelFileError::ModelFileError(std::vector<std::string> messages, int moreCount,
                               std::source_location where)
    : nex_PrimException(JoinLines(messages, moreCount), where.file_name(),
                        static_cast<int>(where.line())),
      messages_(std::move(messages)), moreCount_(moreCount) {}

void LoadErrors::Add(std::string_view path, std::string_view what) {
  ++count_;
  if (messages_.size() >= static_cast<std::size_t>(MaxKept))
    return;
  std::string message;
  if (!path.empty()) {
    message.reserve(path.size() + 2 + what.size());
    message.append(path).append(": ");
  }
  message.append(what);
  messages_.push_back(std::move(message));
}

bool LoadErrors::AnyAtOrUnder(std::string_view path) const {
  if (droppedWhileReading_ > 0)
    return true;
  for (const std::string& message : messages_) {
    if (!message.starts_with(path) || message.size() == path.size())
      continue;
    const char next = message[path.size()];
    if (next == '/' || next == ':')
      return true;
  }
  return false;
}

void LoadErrors::Clear() {
  messages_.clear();
  count_ = 0;
  droppedWhileReading_ = 0;
}

void LoadErrors::Throw() const {
  throw ModelFileError(messages_, count_ - static_cast<int>(messages_.size()));
}

} // namespace keydeck
