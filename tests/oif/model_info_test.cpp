#include "model/database.h"
#include "model/json/loader.h"
#include "oif/NVXKtwInputFileWriter.h"
#include "oif/oif_Model.h"
#include "oif/oif_ModelInfo.h"

#include <gtest/gtest.h>

#include <string>
#include <utility>
#include <vector>

namespace {

/// A model with two part instances and the steps given as JSON.
odb_Odb ModelWithSteps(const std::string& steps) {
  std::vector<std::string> warnings;
  return keydeck::LoadModelText(R"({"format": "keydeck-model", "version": 1, "models": {
      "Default Model": {"parts": {"P": {"nodes": {"labels": [1, 2, 3],
                                  "coordinates": [[0, 0, 0], [1, 0, 0], [2, 0, 0]]},
                                  "elements": [{"type": "T3D2", "labels": [4, 5],
                                                "connectivity": [[1, 2], [2, 3]]}]}},
        "assembly": {"instances": {"B": {"part": "P"}, "A": {"part": "P"}}},
        "steps": )" + steps + "}}}",
                                warnings);
}

const ddb_Model& TheModel(const odb_Odb& odb) { return odb.ddb().model("Default Model"); }

// Perturbation steps that the model file cannot give yet.
template <kprC_ProcedureEnm P>
class PerturbationStep : public kprC_ProcedureStep<PerturbationStep<P>, P> {};

// A model whose steps are an initial step "I" and `steps`, in order.
ddb_Model
ModelOfSteps(const std::vector<std::pair<const char*, kprC_StepContainer::Handle>>& steps) {
  ddb_Model model;
  kprC_StepContainer& container = model.steps_.steps;
  if (!steps.empty())
    container.Append("I", kprC_StepContainer::Handle(kprC_InitialStep()));
  for (const auto& [name, step] : steps)
    container.Append(name, step);
  return model;
}

TEST(ModelFacade, NamesOfTheFirstSteps) {
  using Handle = kprC_StepContainer::Handle;
  const Handle frequency(PerturbationStep<kprC_Frequency>{});
  const Handle buckle(PerturbationStep<kprC_Buckle>{});
  const Handle subspace(PerturbationStep<kprC_SubspaceDynamics>{});
  const Handle statik(kprC_StaticStep{});
  struct Case {
    std::vector<std::pair<const char*, Handle>> steps;
    const char* initial;
    const char* firstAnalysis;
    const char* firstGeneral;
  };
  const Case cases[] = {
      {{}, "", "", ""},
      {{{"F", frequency}, {"B", buckle}}, "I", "F", ""},
      {{{"F", frequency}, {"S", statik}, {"T", statik}}, "I", "F", "S"},
      // Subspace dynamics is a general procedure.
      {{{"D", subspace}, {"S", statik}}, "I", "D", "D"},
  };
  for (const Case& c : cases) {
    SCOPED_TRACE(c.firstAnalysis);
    const oif_Model facade(ModelOfSteps(c.steps), "ignored");
    EXPECT_EQ(facade.InitialStepName(), c.initial);
    EXPECT_EQ(facade.FirstAnalysisStepName(), c.firstAnalysis);
    EXPECT_EQ(facade.FirstGeneralAnalysisStepName(), c.firstGeneral);
    EXPECT_EQ(facade.Description(), "");
  }
}

TEST(ModelInfo, ExplicitJobAndAnalysisProduct) {
  struct Case {
    const char* steps;
    bool explicitJob;
    kprC_AnalysisProductEnm product;
  };
  const Case cases[] = {
      {"[]", false, kprC_ImplicitProduct},
      {R"([{"name": "I"}])", false, kprC_ImplicitProduct},
      {R"([{"name": "I"}, {"name": "A", "procedure": "static"},
           {"name": "B", "procedure": "explicitDynamics"}, {"name": "C", "procedure": "static"}])",
       true, kprC_BothProducts},
      {R"([{"name": "I"}, {"name": "A", "procedure": "explicitDynamics"}])", true,
       kprC_ExplicitProduct},
  };
  for (const Case& c : cases) {
    SCOPED_TRACE(c.steps);
    const odb_Odb odb = ModelWithSteps(c.steps);
    const oif_ModelInfo info(TheModel(odb));
    EXPECT_EQ(info.ExplicitJob(), c.explicitJob);
    EXPECT_EQ(info.AnalysisProduct(), c.product);
    EXPECT_TRUE(info.V6Format());
  }
}

TEST(ModelInfo, MeshTablesAndNumbering) {
  const odb_Odb odb = ModelWithSteps("[]");
  oif_ModelInfo info(TheModel(odb));
  // Instances take mesh indices in name order. An assembly without a mesh of
  // its own is in the tables by its empty name, but has no mesh index.
  EXPECT_EQ(info.InstanceName(1, false), "A");
  EXPECT_EQ(info.InstanceName(2, false), "B");
  EXPECT_THROW(info.InstanceName(0, false), nex_PrimException);
  EXPECT_THROW(info.InstanceName(-1, false), nex_PrimException);
  EXPECT_EQ(info.TeachingNodes(), 6);
  EXPECT_EQ(info.AssyNodeOffsets(""), 0);
  EXPECT_EQ(info.AssyElementOffsetsID(2), 0);

  EXPECT_EQ(info.GetNewNodeIndex("A", false), 4);
  EXPECT_EQ(info.GetNewNodeIndex("A", false), 4);
  EXPECT_EQ(info.GetNewNodeIndex("A", true), 4);
  EXPECT_EQ(info.GetNewNodeIndex("A", true), 5);
  EXPECT_EQ(info.GetNewNodeIndex("B", false), 4);
  EXPECT_EQ(info.IncrementNodeIndex("B", 10), 13);
  EXPECT_EQ(info.GetNewElementIndex("", true), 1);
  EXPECT_EQ(info.IncrementElementIndex("A", 3), 5);
  EXPECT_THROW(info.GetNewNodeIndex("Nobody", false), nex_PrimException);
}

TEST(ModuleEntries, CountArithmetic) {
  int loaded = 0;
  NVXKtwInputFileWriter_initialize(loaded);
  const int modules = loaded; // the lower layers, the two library layers and the module's own part
  EXPECT_EQ(modules, 6);
  NVXKtwInputFileWriter_initialize(loaded);
  EXPECT_EQ(loaded, modules) << "a second use loads nothing";
  NVXKtwIfwQkw_initialize(loaded);
  EXPECT_EQ(loaded, modules) << "the contract layer is up already";
  NVXKtwIfwQkw_finalize(loaded);
  NVXKtwInputFileWriter_finalize(loaded);
  EXPECT_EQ(loaded, modules) << "still in use once";
  NVXKtwInputFileWriter_finalize(loaded);
  EXPECT_EQ(loaded, 0);
  NVXKtwInputFileWriter_finalize(loaded);
  EXPECT_EQ(loaded, 0) << "a finalize too many changes nothing";
  NVXKtwInputFileWriter_initializeC();
  NVXKtwInputFileWriter_finalizeC();
}

} // namespace
