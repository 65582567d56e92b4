#pragma once

#include "model/database.h"
#include "model/json/loader.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

// What the tests of the model file share: texts of small files and the
// messages or the database that loading them gives.
namespace keydeck::test {

/// The messages that loading `json` gives; none when it loads.
inline std::vector<std::string> MessagesOf(const std::string& json) {
  std::vector<std::string> warnings;
  try {
    LoadModelText(json, warnings);
  } catch (const ModelFileError& error) {
    return error.Messages();
  }
  return {};
}

inline odb_Odb Load(const std::string& json) {
  std::vector<std::string> warnings;
  return LoadModelText(json, warnings);
}

/// A file whose one model "M" has `body` as its text.
inline std::string InModel(const std::string& body) {
  return R"({"format": "keydeck-model", "version": 1, "models": {"M": )" + body + "}}";
}

inline std::string WithPart(const std::string& part) {
  return InModel(R"({"parts": {"P": )" + part + "}}");
}

inline const ddb_Model& OnlyModel(const odb_Odb& odb) { return odb.ddb().model("M"); }

inline const ddb_PartInstance& InstanceOf(const ddb_Model& model, const char* name) {
  return RecordCast<ddb_PartInstance>(model.rootAssembly().instance().ConstGet(name));
}

struct MessageCase {
  const char* name;
  std::string json;
  std::vector<std::string> messages;
};

inline void ExpectMessages(const std::vector<MessageCase>& cases) {
  for (const MessageCase& c : cases) {
    SCOPED_TRACE(c.name);
    EXPECT_EQ(MessagesOf(c.json), c.messages);
  }
}

} // namespace keydeck::test
