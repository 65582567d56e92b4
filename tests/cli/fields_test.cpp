// Predefined fields through the command: what it says of a field that the
// model cannot carry, with the field's path.
#include "tests/support/deck_text.h"
#include "tests/support/run_keydeck.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <string>

namespace {

namespace fs = std::filesystem;

class FieldsCommand : public keydeck::test::CommandTest {
protected:
  // Runs "keydeck write" on a model with a node set "Tip", an element set
  // "All", the amplitude "Ramp", a static step "S1" whose load case "LC"
  // names the field "F", and the given fields; returns the exit status, with
  // stderr in `err`.
  int Write(const std::string& fields, std::string& err) const {
    return WriteBrickModel(R"(,
      "amplitudes": {"Ramp": {"type": "tabular", "data": [0, 0, 1, 1]}},
      "steps": [{"name": "Initial"},
                {"name": "S1", "procedure": "static",
                 "loadCases": {"LC": {"fields": {"F": {"scale": 2}}}}}],
      "predefinedFields": )" + fields,
                           err);
  }
};

TEST_F(FieldsCommand, RefusesWhatTheModelCannotCarry) {
  const std::pair<const char*, const char*> cases[] = {
      {R"({"F": {"type": "temperature", "region": "P-1.All", "createdIn": "S1"}})",
       "models/M/predefinedFields/F/region: \"P-1.All\" is an element set; a field of type "
       "\"temperature\" needs a node set\n"},
      {R"({"F": {"type": "temperature", "region": "P-1.Tip", "createdIn": "Initial",
                 "steps": {"S1": {"amplitude": "Smooth"}}}})",
       "models/M/predefinedFields/F/steps/S1/amplitude: no amplitude \"Smooth\" in the model\n"},
      {R"({})", "models/M/steps/1/loadCases/LC/fields/F: no predefined field \"F\"\n"},
      {R"({"F": {"type": "field", "region": "P-1.Tip", "createdIn": "S1", "number": 0}})",
       "models/M/predefinedFields/F/number: the number of a field variable is 1 or more\n"},
      {R"({"F": {"type": "velocity", "region": "P-1.Tip", "createdIn": "S1"}})",
       "models/M/predefinedFields/F/createdIn: a velocity is an initial condition: it is created "
       "in the initial step\n"},
      {R"({"F": {"type": "velocity", "region": "P-1.Tip", "createdIn": "Initial",
                 "rotating": true}})",
       "models/M/predefinedFields/F/point2: the axis needs two distinct points\n"},
      {R"({"F": {"type": "temperature", "region": "P-1.Tip", "createdIn": "Initial",
                 "distribution": "fromFileAndUser", "file": "a.fil"}})",
       "models/M/predefinedFields/F/distribution: an initial condition cannot be "
       "\"fromFileAndUser\"\n"},
      {R"({"F": {"type": "field", "number": 1, "region": "P-1.Tip", "createdIn": "S1",
                 "distribution": "geostatic"}})",
       "models/M/predefinedFields/F/distribution: a field of type \"field\" cannot be "
       "\"geostatic\"\n"},
      {R"({"F": {"type": "temperature", "region": "P-1.Tip", "createdIn": "Initial",
                 "distribution": "fromFile", "file": "a.fil", "beginStep": 1}})",
       "models/M/predefinedFields/F: an initial condition from a file needs \"beginStep\" and "
       "\"beginIncrement\"\n"},
      {R"({"F": {"type": "temperature", "region": "P-1.Tip", "createdIn": "S1",
                 "distribution": "fromFile"}})",
       "models/M/predefinedFields/F/file: a field of type \"temperature\" from a file needs "
       "\"file\"\n"},
      {R"({"F": {"type": "stress", "region": "P-1.All", "createdIn": "Initial"}})",
       "models/M/predefinedFields/F/type: field type \"stress\" is not supported yet\n"},
  };
  for (const auto& [fields, message] : cases) {
    SCOPED_TRACE(fields);
    std::string err;
    EXPECT_EQ(Write(fields, err), 1);
    EXPECT_NE(err.find(message), std::string::npos) << err;
    EXPECT_FALSE(fs::exists(folder_ / "model.inp"));
  }
}

TEST_F(FieldsCommand, WritesAFieldOfTheModelInItsLoadCase) {
  std::string err;
  ASSERT_EQ(Write(R"({"F": {"type": "field", "number": 4, "region": "P-1.Tip",
                           "createdIn": "S1", "values": [0.5]}})",
                  err),
            0)
      << err;
  const std::string deck = keydeck::test::ReadFile((folder_ / "model.inp").string());
  EXPECT_NE(deck.find("** Name: F   Type: Field variable   Scale factor: 2\n*Field, number=4\n"
                      "P-1.Tip, 0.5\n*End Load Case\n"),
            std::string::npos)
      << deck;
}

} // namespace
