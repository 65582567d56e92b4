#include "model/json/loader.h"
#include "model/json/schema.h"
#include "model/materials.h"
#include "model/records.h"
#include "model/steps.h"

#include <gtest/gtest.h>
#include <simdjson.h>

#include <algorithm>
#include <filesystem>
#include <set>
#include <string>
#include <vector>

using namespace keydeck;

namespace {

namespace dom = simdjson::dom;

// A validator for the part of JSON Schema that the generator uses. A keyword
// it does not know is itself a problem, so the schema cannot drift past it.
// The rules on strings ("pattern", "minLength", "propertyNames") it passes
// over: tests/schema/check_schema.py checks them with a full validator.
class Validator {
public:
  std::vector<std::string> problems;

  void Check(dom::element schema, dom::element value, const std::string& path) {
    for (const auto [keyword, argument] : dom::object(schema)) {
      if (keyword == "$schema" || keyword == "title" || keyword == "default" ||
          keyword == "description" || keyword == "pattern" || keyword == "minLength" ||
          keyword == "propertyNames")
        continue;
      if (keyword == "type")
        CheckType(std::string_view(argument), value, path);
      else if (keyword == "enum")
        CheckEnum(dom::array(argument), value, path);
      else if (keyword == "oneOf")
        CheckOneOf(dom::array(argument), value, path);
      else if (keyword == "const" &&
               !(value.is_string() && std::string_view(value) == std::string_view(argument)))
        problems.push_back(path + ": not the constant " + std::string(std::string_view(argument)));

      else if (keyword == "allOf")
        for (const dom::element part : dom::array(argument))
          Check(part, value, path);
      else if (keyword == "minimum" && IsNumber(value) && Number(value) < Number(argument))
        problems.push_back(path + ": below the minimum");
      else if (keyword == "maximum" && IsNumber(value) && Number(value) > Number(argument))
        problems.push_back(path + ": above the maximum");
      else if (keyword == "minItems" && value.is_array() &&
               dom::array(value).size() < std::uint64_t(argument))
        problems.push_back(path + ": too few items");
      else if (keyword == "maxItems" && value.is_array() &&
               dom::array(value).size() > std::uint64_t(argument))
        problems.push_back(path + ": too many items");
      else if (keyword == "required" && value.is_object())
        CheckRequired(dom::array(argument), dom::object(value), path);
      else if (keyword == "properties" || keyword == "additionalProperties") {
        if (FirstOf(schema, keyword, "properties"))
          CheckMembers(schema, value, path);
      } else if (keyword == "items" || keyword == "prefixItems") {
        if (FirstOf(schema, keyword, "prefixItems"))
          CheckItems(schema, value, path);
      } else if (keyword != "minimum" && keyword != "maximum" && keyword != "minItems" &&
                 keyword != "maxItems" && keyword != "required" && keyword != "const") {
        problems.push_back(path + ": unsupported keyword " + std::string(keyword));
      }
    }
  }

private:
  static bool IsNumber(dom::element value) {
    return value.is_int64() || value.is_uint64() || value.is_double();
  }
  static double Number(dom::element value) { return double(value); }

  void CheckType(std::string_view type, dom::element value, const std::string& path) {
    const bool matches =
        (type == "object" && value.is_object()) || (type == "array" && value.is_array()) ||
        (type == "string" && value.is_string()) || (type == "boolean" && value.is_bool()) ||
        (type == "null" && value.is_null()) || (type == "number" && IsNumber(value)) ||
        (type == "integer" && (value.is_int64() || value.is_uint64()));
    if (!matches)
      problems.push_back(path + ": not of type " + std::string(type));
  }

  void CheckEnum(dom::array words, dom::element value, const std::string& path) {
    for (const dom::element word : words) {
      if (word.is_string() && value.is_string() &&
          std::string_view(word) == std::string_view(value))
        return;
      if (word.is_int64() && value.is_int64() && int64_t(word) == int64_t(value))
        return;
    }
    problems.push_back(path + ": not one of the enumerated values");
  }

  void CheckOneOf(dom::array schemas, dom::element value, const std::string& path) {
    int matches = 0;
    for (const dom::element schema : schemas) {
      Validator alone;
      alone.Check(schema, value, path);
      matches += alone.problems.empty() ? 1 : 0;
    }
    if (matches != 1)
      problems.push_back(path + ": matches " + std::to_string(matches) + " of the oneOf schemas");
  }

  void CheckRequired(dom::array names, dom::object object, const std::string& path) {
    for (const dom::element name : names)
      if (object.at_key(std::string_view(name)).error())
        problems.push_back(path + ": lacks " + std::string(std::string_view(name)));
  }

  // "properties" and "additionalProperties" act together; they are applied
  // at the first of them, and so are "prefixItems" and "items".
  static bool FirstOf(dom::object schema, std::string_view keyword, std::string_view first) {
    return keyword == first || schema[first].error();
  }

  void CheckMembers(dom::object schema, dom::element value, const std::string& path) {
    if (!value.is_object())
      return;
    dom::object properties;
    const bool hasProperties = !schema["properties"].get(properties);
    dom::element additional;
    const bool hasAdditional = !schema["additionalProperties"].get(additional);
    for (const auto [key, member] : dom::object(value)) {
      const std::string memberPath = path + "/" + std::string(key);
      dom::element property;
      if (hasProperties && !properties[key].get(property))
        Check(property, member, memberPath);
      else if (hasAdditional && additional.is_bool() && !bool(additional))
        problems.push_back(path + ": unknown member " + std::string(key));
      else if (hasAdditional && additional.is_object())
        Check(additional, member, memberPath);
    }
  }

  void CheckItems(dom::object schema, dom::element value, const std::string& path) {
    if (!value.is_array())
      return;
    dom::array prefix;
    const bool hasPrefix = !schema["prefixItems"].get(prefix);
    dom::element items;
    const bool hasItems = !schema["items"].get(items);
    std::size_t index = 0;
    for (const dom::element item : dom::array(value)) {
      const std::string itemPath = path + "/" + std::to_string(index);
      if (hasPrefix && index < prefix.size())
        Check(prefix.at(index).value(), item, itemPath);
      else if (hasItems)
        Check(items, item, itemPath);
      ++index;
    }
  }
};

// Collects the path of each field, and of each record (an object schema with
// "properties"), that says nothing of what it is. An "allOf" part only adds
// a rule to a field that its record already describes, so the walk skips it.
void CollectUndescribed(dom::element schema, const std::string& path,
                        std::set<std::string>& undescribed) {
  if (!schema.is_object())
    return;
  const dom::object object(schema);
  dom::object properties;
  const bool isRecord = !object["properties"].get(properties);
  if (isRecord && object["description"].error())
    undescribed.insert(path);
  if (isRecord) {
    for (const auto [key, property] : properties) {
      const std::string propertyPath = path + "/" + std::string(key);
      if (!property.is_object() || dom::object(property)["description"].error())
        undescribed.insert(propertyPath);
      CollectUndescribed(property, propertyPath, undescribed);
    }
  }
  for (const std::string_view keyword : {"additionalProperties", "items"}) {
    dom::element inner;
    if (!object[keyword].get(inner))
      CollectUndescribed(inner, path + "/" + std::string(keyword), undescribed);
  }
  for (const std::string_view keyword : {"prefixItems", "oneOf"}) {
    dom::array list;
    if (object[keyword].get(list))
      continue;
    std::size_t index = 0;
    for (const dom::element inner : list)
      CollectUndescribed(inner, path + "/" + std::string(keyword) + "/" + std::to_string(index++),
                         undescribed);
  }
}

std::string ReadText(const std::filesystem::path& path) {
  const simdjson::padded_string text = simdjson::padded_string::load(path.string()).value();
  return std::string(text.data(), text.size());
}

class Schema : public ::testing::Test {
protected:
  void SetUp() override {
    schemaText_ = ModelSchema();
    ASSERT_FALSE(parser_.parse(schemaText_).get(schema_)) << "the schema is not valid JSON";
  }

  std::vector<std::string> Problems(const std::string& json) {
    dom::parser parser;
    dom::element document;
    if (parser.parse(json).get(document))
      return {"not JSON"};
    Validator validator;
    validator.Check(schema_, document, "");
    return validator.problems;
  }

  static bool Loads(const std::string& json) {
    std::vector<std::string> warnings;
    try {
      LoadModelText(json, warnings);
    } catch (const ModelFileError&) {
      return false;
    }
    return true;
  }

  std::string schemaText_;
  dom::parser parser_;
  dom::element schema_;
};

const char* const SmallModel = R"({"format": "keydeck-model", "version": 1, "models": {
  "Default Model": {
    "topLevelSolverInput": "** top", "absoluteZero": -273.15, "endRestartStep": false,
    "parts": {"Beam": {
      "nodes": {"labels": [1, 2, 3], "coordinates": [[0, 0, 0], [1, 0, 0], [2, 0, 0]]},
      "elements": [{"type": "B31", "labels": [1, 2], "connectivity": [[1, 2], [2, 3]]}],
      "solverInput": "*part"}},
    "assembly": {"name": "Assembly", "instances": {"Beam-1": {"part": "Beam", "solverInput": ""}}},
    "steps": [{"name": "Initial"},
              {"name": "Step-1", "procedure": "static", "loadCases": {"LC": {}}, "solverInput": "x"}]}}})";

TEST_F(Schema, IsStableAndDeclaresItsDialect) {
  EXPECT_EQ(ModelSchema(), schemaText_);
  EXPECT_EQ(std::string_view(schema_["$schema"]), "https://json-schema.org/draft/2020-12/schema");
}

// Spot checks that the schema says what the field lists say.
TEST_F(Schema, FollowsTheFieldLists) {
  const dom::element model = schema_["properties"]["models"]["additionalProperties"];
  // Each procedure is an object of its own (tests/model/steps_test.cpp).
  const dom::element analysisStep = model["properties"]["steps"]["items"]["oneOf"].at(0);
  std::vector<std::string> required;
  for (const dom::element name : dom::array(analysisStep["required"]))
    required.emplace_back(std::string_view(name));
  EXPECT_EQ(required, (std::vector<std::string>{"name", "procedure"}));
  EXPECT_EQ(std::string_view(model["properties"]["assembly"]["properties"]["name"]["default"]),
            "Assembly");
  // A not-given mark is no default.
  EXPECT_TRUE(model["properties"]["absoluteZero"]["default"].error());
  EXPECT_FALSE(bool(model["properties"]["endRestartStep"]["default"]));
  EXPECT_FALSE(bool(model["additionalProperties"]));

  const dom::element material = model["properties"]["materials"]["additionalProperties"];
  std::vector<std::string> elasticWords;
  for (const dom::element word :
       dom::array(material["properties"]["elastic"]["properties"]["type"]["enum"]))
    elasticWords.emplace_back(std::string_view(word));
  std::vector<std::string> elasticTableWords;
  for (const auto& entry : EnumTable<kmaC_Elastic::TypeEnm>::Entries)
    elasticTableWords.emplace_back(entry.fileText);
  EXPECT_EQ(elasticWords, elasticTableWords);
  EXPECT_EQ(std::string_view(material["properties"]["elastic"]["properties"]["type"]["default"]),
            "isotropic");
  // A table is rows of numbers; what the deck leaves out takes any value;
  // what it cannot write yet is not there.
  const dom::element table = material["properties"]["density"]["properties"]["table"];
  EXPECT_EQ(std::string_view(table["items"]["items"]["type"]), "number");
  const dom::object dropped = material["properties"]["mullinsEffect"];
  EXPECT_EQ(dropped.size(), 1u);
  EXPECT_FALSE(dropped["description"].error());
  EXPECT_TRUE(material["properties"]["hyperelastic"].error());

  // Descriptions come from the declarations: a field's from its `v` call, a
  // record's where no field describes it (an entry of a map).
  EXPECT_EQ(std::string_view(model["description"]), ddb_Model::Description);
  EXPECT_EQ(std::string_view(model["properties"]["parts"]["description"]), "the parts by name");
  EXPECT_EQ(std::string_view(material["description"]), kmaC_Material::Description);
  EXPECT_EQ(std::string_view(
                material["properties"]["density"]["properties"]["dependencies"]["description"]),
            "the number of field-variable columns at the end of each row");
  EXPECT_EQ(std::string_view(model["properties"]["assembly"]["description"]),
            "the assembly of part instances");
}

// Every field and every record of the file says what it is, so that no field
// joins the file without a description.
TEST_F(Schema, DescribesEveryFieldAndRecord) {
  std::set<std::string> undescribed;
  CollectUndescribed(schema_, "", undescribed);
  EXPECT_EQ(undescribed, std::set<std::string>{});

  // The walk finds what lacks one.
  dom::parser parser;
  const dom::element bare =
      parser
          .parse(std::string(R"({"description": "a", "properties": {"x": {"type": "integer"},
             "y": {"description": "b", "items": {"properties": {"z": {"description": "c"}}}}}})"))
          .value();
  std::set<std::string> found;
  CollectUndescribed(bare, "", found);
  EXPECT_EQ(found, (std::set<std::string>{"/x", "/y/items"}));
}

TEST_F(Schema, AcceptsValidFiles) {
  EXPECT_EQ(Problems(SmallModel), std::vector<std::string>{});
  EXPECT_TRUE(Loads(SmallModel));
  std::vector<std::filesystem::path> files;
  for (const char* folder : {"/examples", "/tests/golden"}) {
    const std::filesystem::path directory = std::string(KEYDECK_SOURCE_DIR) + folder;
    if (!std::filesystem::is_directory(directory))
      continue;
    for (const auto& entry : std::filesystem::directory_iterator(directory))
      if (entry.path().extension() == ".json")
        files.push_back(entry.path());
  }
  std::sort(files.begin(), files.end());
  std::vector<std::pair<std::string, std::string>> documents;
  for (const std::filesystem::path& file : files)
    documents.emplace_back(file.string(), ReadText(file));
  // The complete files that the format document shows.
  const std::string format = ReadText(std::string(KEYDECK_SOURCE_DIR) + "/docs/model-format.md");
  for (std::size_t at = format.find("```json\n{\n  \"format\""); at != std::string::npos;
       at = format.find("```json\n{\n  \"format\"", at + 1)) {
    const std::size_t start = at + 8;
    documents.emplace_back("docs/model-format.md",
                           format.substr(start, format.find("```", start) - start));
  }
  EXPECT_FALSE(documents.empty());
  for (const auto& [name, json] : documents) {
    SCOPED_TRACE(name);
    EXPECT_EQ(Problems(json), std::vector<std::string>{});
    EXPECT_TRUE(Loads(json));
  }
}

TEST_F(Schema, AcceptsWhatTheDeckLeavesOut) {
  std::string json = SmallModel;
  const std::string from = R"("topLevelSolverInput": "** top")";
  json.replace(json.find(from), from.size(),
               R"("materials": {"S": {"mullinsEffect": [1, {"a": null}], "shear": 3}})");
  EXPECT_EQ(Problems(json), std::vector<std::string>{});
  EXPECT_TRUE(Loads(json));
}

// Faults the schema can express: both the schema and the loader refuse them.
TEST_F(Schema, RefusesWhatTheLoaderRefuses) {
  const std::string small = SmallModel;
  auto replaced = [&small](const std::string& from, const std::string& to) {
    std::string text = small;
    const std::size_t at = text.find(from);
    EXPECT_NE(at, std::string::npos) << from;
    return text.replace(at, from.size(), to);
  };
  const std::pair<std::string, std::string> cases[] = {
      {replaced(R"("solverInput": "*part")", R"("solverInputs": "*part")"),
       "/models/Default Model/parts/Beam: unknown member solverInputs"},
      {replaced(R"("absoluteZero": -273.15)", R"("absoluteZero": "cold")"),
       "/models/Default Model/absoluteZero: not of type number"},
      {replaced(R"("procedure": "static")", R"("procedure": "statc")"),
       "/models/Default Model/steps/1: matches 0 of the oneOf schemas"},
      {replaced(R"({"name": "Initial"})", R"({"name": "Initial", "procedure": "static"})"),
       "/models/Default Model/steps/0: unknown member procedure"},
      {replaced(R"("procedure": "static", )", ""),
       "/models/Default Model/steps/1: matches 0 of the oneOf schemas"},
      {replaced("[2, 0, 0]", "[2, 0]"),
       "/models/Default Model/parts/Beam/nodes/coordinates/2: too few items"},
      {replaced("[1, 2, 3]", "[1, 2, 3.5]"),
       "/models/Default Model/parts/Beam/nodes/labels/2: not of type integer"},
      {replaced("[1, 2, 3]", "[1, 2, 2147483648]"),
       "/models/Default Model/parts/Beam/nodes/labels/2: above the maximum"},
      {replaced(R"("version": 1)", R"("version": 2)"),
       "/version: not one of the enumerated values"},
      {replaced(R"("format": "keydeck-model")", R"("format": "other")"),
       "/format: not one of the enumerated values"},
      {replaced(R"({"LC": {}})", R"({"LC": {"x": 1}})"),
       "/models/Default Model/steps/1: matches 0 of the oneOf schemas"},
      {replaced(R"("part": "Beam")", R"("part": "Beam", "scale": 2)"),
       "/models/Default Model/assembly/instances/Beam-1: unknown member scale"},
      {replaced(R"("part": "Beam")", R"("part": "Beam", "rotation": {"axis": [0, 0, 1]})"),
       "/models/Default Model/assembly/instances/Beam-1/rotation: lacks angle"},
      {replaced(R"("part": "Beam")", R"("part": "Beam", "translation": [1, 0])"),
       "/models/Default Model/assembly/instances/Beam-1/translation: too few items"},
      {replaced(R"("solverInput": "*part")", R"("sets": {"S": {"nodes": "all"}})"),
       "/models/Default Model/parts/Beam/sets/S/nodes: matches 0 of the oneOf schemas"},
      {replaced(R"("solverInput": "*part")", R"("sets": {"S": {"nodes": {"generate": [1, 3]}}})"),
       "/models/Default Model/parts/Beam/sets/S/nodes: matches 0 of the oneOf schemas"},
      {replaced(
           R"("solverInput": "*part")",
           R"("surfaces": {"S": {"faces": [{"face": "END1", "elements": [1], "labels": [1]}]}})"),
       "/models/Default Model/parts/Beam/surfaces/S/faces/0: unknown member labels"},
      {replaced(R"("format": "keydeck-model", )", ""), ": lacks format"},
      {replaced(R"("topLevelSolverInput": "** top")",
                R"("materials": {"S": {"elastic": {"type": "isotropc", "table": [[1, 0.3]]}}})"),
       "/models/Default Model/materials/S/elastic/type: not one of the enumerated values"},
      {replaced(R"("topLevelSolverInput": "** top")",
                R"("materials": {"S": {"hyperelastic": {}}})"),
       "/models/Default Model/materials/S: unknown member hyperelastic"},
      {replaced(R"("topLevelSolverInput": "** top")",
                R"("materials": {"S": {"density": {"table": [[]]}}})"),
       "/models/Default Model/materials/S/density/table/0: too few items"},
      {replaced(R"("topLevelSolverInput": "** top")",
                R"("materials": {"S": {"density": {"table": [["1"]]}}})"),
       "/models/Default Model/materials/S/density/table/0/0: not of type number"},
  };
  for (const auto& [json, problem] : cases) {
    SCOPED_TRACE(problem);
    EXPECT_EQ(Problems(json), std::vector<std::string>{problem});
    EXPECT_FALSE(Loads(json));
  }
}

} // namespace
