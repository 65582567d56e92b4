// The output cards, and the output requests of whole models as the builder
// files them.
#include "model/json/loader.h"
#include "oif/oif_ContactOutput.h"
#include "oif/oif_ElementOutput.h"
#include "oif/oif_EnergyOutput.h"
#include "oif/oif_IncrementationOutput.h"
#include "oif/oif_IntegratedOutput.h"
#include "oif/oif_ModalOutput.h"
#include "oif/oif_NodeOutput.h"
#include "oif/oif_Output.h"
#include "oif/oif_RadiationOutput.h"
#include "tests/support/deck_text.h"

#include <gtest/gtest.h>

#include <initializer_list>
#include <string>
#include <vector>

using namespace keydeck;
using keydeck::test::DeckText;

namespace {

korC_OdbRequest Listing(std::initializer_list<const char*> variables) {
  korC_OdbRequest request;
  for (const char* name : variables)
    request.variables.Append(name);
  return request;
}

// A request at that frequency, its time marks at the default of `procedure`.
korC_OdbRequest Every(korC_FrequencyTypeEnm kind, int value, unsigned procedure = kprC_Static) {
  korC_OdbRequest request;
  request.timeMarks = korC_DefaultTimeMarks(procedure);
  request.frequencyType = kind;
  request.frequency = kind == korC_EveryIncrements ? value : 0;
  request.numberInterval = kind == korC_NumberIntervals ? value : 0;
  return request;
}

const korC_OdbChannel Field(true);
const korC_OdbChannel History(false);

// The output requests of a model: the deck from the first step on.
std::string StepOutput(const std::string& model) {
  std::vector<std::string> warnings;
  const odb_Odb odb = LoadModelText(
      R"({"format": "keydeck-model", "version": 1, "models": {"Default Model": {
      "parts": {"P": {"nodes": {"labels": [1, 2, 3, 4, 5, 6, 7, 8],
          "coordinates": [[0,0,0],[1,0,0],[1,1,0],[0,1,0],[0,0,1],[1,0,1],[1,1,1],[0,1,1]]},
        "elements": [{"type": "C3D8R", "labels": [1], "connectivity": [[1,2,3,4,5,6,7,8]]}],
        "sets": {"Tip": {"nodes": [5, 6, 7, 8]}, "Body": {"elements": [1]}}}},
      "assembly": {"instances": {"P-1": {"part": "P"}}}, )" +
          model + "}}}",
      warnings);
  const std::string deck = test::DeckOfModel(odb);
  const std::size_t first = deck.find("*Step");
  return first == std::string::npos ? std::string() : deck.substr(first);
}

// The output block of step `step` in `deck`: from its first output line to
// "*End Step".
std::string OutputOfStep(const std::string& deck, const char* step) {
  const std::size_t at = deck.find(std::string("*Step, name=") + step);
  const std::size_t to = deck.find("*End Step", at);
  std::size_t from = deck.find("** \n** OUTPUT REQUESTS", at);
  if (from > to)
    from = deck.find("*Output", at);
  return deck.substr(from, to - from);
}

} // namespace

TEST(OutputCards, OutputLineByFrequency) {
  korC_OdbRequest timed = Every(korC_EveryTimeInterval, 0);
  timed.timeInterval = 0.25;
  korC_OdbRequest marked = Every(korC_NumberIntervals, 10, kprC_ExplicitDynamics);
  marked.timeMarks = true;
  korC_OdbRequest points = Every(korC_AtTimePoints, 0);
  points.timePoints = "TP-1";
  points.timeMarks = false;
  korC_OdbRequest filtered = Every(korC_EveryIncrements, 3);
  filtered.filter = "F1";
  const struct {
    const char* name;
    oif_Output card;
    const char* deck;
  } cases[] = {
      {"default every increment left out",
       oif_Output(Field, Every(korC_EveryIncrements, 1), false, false, 0, kprC_Static),
       "*Output, field\n"},
      {"preselect", oif_Output(Field, Every(korC_EveryIncrements, 1), true, false, 0, kprC_Static),
       "*Output, field, variable=PRESELECT\n"},
      {"all and a frequency",
       oif_Output(History, Every(korC_EveryIncrements, 5), false, true, 0, kprC_Static),
       "*Output, history, variable=ALL, frequency=5\n"},
      {"filter", oif_Output(Field, filtered, false, false, 0, kprC_Static),
       "*Output, field, filter=F1, frequency=3\n"},
      {"no output", oif_Output(Field, Every(korC_EveryIncrements, 0), true, false, 0, kprC_Static),
       "*Output, field, frequency=0\n"},
      {"intervals of an implicit step",
       oif_Output(Field, Every(korC_NumberIntervals, 10), false, false, 0, kprC_Static),
       "*Output, field, number interval=10\n"},
      {"time marks off by default in an explicit step",
       oif_Output(Field, marked, false, false, 0, kprC_ExplicitDynamics),
       "*Output, field, number interval=10, time marks=YES\n"},
      {"the explicit field default of 20 intervals",
       oif_Output(Field, Every(korC_NumberIntervals, 20, kprC_ExplicitDynamics), true, false, 1,
                  kprC_ExplicitDynamics),
       "*Output, field, variable=PRESELECT\n"},
      {"the explicit history default of 200 intervals",
       oif_Output(History, Every(korC_NumberIntervals, 200, kprC_ExplicitDynamics), true, false, 2,
                  kprC_ExplicitDynamics),
       "*Output, history, variable=PRESELECT\n"},
      {"explicit history intervals as a time interval",
       oif_Output(History, Every(korC_NumberIntervals, 100, kprC_ExplicitDynamics), false, false,
                  2.0, kprC_ExplicitDynamics),
       "*Output, history, time interval=0.02\n"},
      {"explicit history intervals without a step time",
       oif_Output(History, Every(korC_NumberIntervals, 100, kprC_ExplicitDynamics), false, false, 0,
                  kprC_ExplicitDynamics),
       "*Output, history\n"},
      {"time interval", oif_Output(Field, timed, false, false, 0, kprC_Static),
       "*Output, field, time interval=0.25\n"},
      {"time points, time marks off", oif_Output(Field, points, false, false, 0, kprC_Visco),
       "*Output, field, time points=TP-1, time marks=NO\n"},
      {"explicit every increment",
       oif_Output(History, Every(korC_EveryIncrements, 1), false, false, 0, kprC_ExplicitDynamics),
       "*Output, history, frequency=1\n"},
  };
  for (const auto& c : cases) {
    SCOPED_TRACE(c.name);
    EXPECT_EQ(DeckText(c.card), c.deck);
  }

  korC_OdbRequest modes = Every(korC_ModeList, 0);
  for (int mode = 1; mode <= 17; ++mode)
    modes.modeList.Append(mode);
  EXPECT_EQ(
      DeckText(oif_Output(Field, modes, false, false, 0, kprC_Frequency)),
      "*Output, field, mode list\n1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 13, 14, 15, 16, \n17\n");
}

// Eight names to a line; a component is its vector, written once; one name
// keeps its ", "; variables of other cards or procedures stay out.
TEST(OutputCards, NodeOutputLists) {
  const korC_OdbRequest nine =
      Listing({"U", "V", "A", "RF", "COORD", "NT", "RFL", "TF", "VF", "CF", "S"});
  EXPECT_EQ(
      DeckText(oif_NodeOutput(nine, kprC_TempDisplacementDynamics, "P-1.Tip", false, false, true)),
      "*Node Output, nset=P-1.Tip\nU, V, A, RF, COORD, NT, RFL, TF, \nVF\n");
  EXPECT_EQ(DeckText(oif_NodeOutput(Listing({"U1", "U2", "UR3", "S"}), kprC_Static, "", false,
                                    false, true)),
            "*Node Output\nU, \n");
  EXPECT_EQ(DeckText(oif_NodeOutput(Listing({"S"}), kprC_Static, "", false, false, true)), "");
  EXPECT_EQ(DeckText(oif_NodeOutput(Listing({}), kprC_Frequency, "", false, false, false)),
            "*Node Output\n");
  EXPECT_EQ(DeckText(oif_NodeOutput(Listing({"S"}), kprC_Static, "Tip", true, false, true)),
            "*Node Output, nset=Tip, variable=PRESELECT\n");
}

TEST(OutputCards, ElementOutput) {
  korC_OdbRequest request = Listing({"S11", "MISES", "PE", "CSTRESS", "CPRESS", "RBFOR", "U"});
  // A component prints as its tensor, an invariant as itself; PE brings
  // PEEQ; a contact variable named itself counts, a component of it not.
  EXPECT_EQ(
      DeckText(oif_ElementOutput(Field, request, kprC_Static, "P-1.Body", false, false, false)),
      "*Element Output, elset=P-1.Body, directions=YES\nS, MISES, PE, CSTRESS, PEEQ\n");
  EXPECT_EQ(DeckText(oif_ElementOutput(History, request, kprC_Static, "", false, false, true)),
            "*Element Output, rebar\nS, MISES, PE, CSTRESS, RBFOR, PEEQ\n");
  request.interactions.Append("Contact-1");
  request.directions = false;
  EXPECT_EQ(DeckText(oif_ElementOutput(Field, request, kprC_Static, "", false, false, false)),
            "*Element Output, directions=NO\nS, MISES, PE, PEEQ\n");
  EXPECT_EQ(DeckText(oif_ElementOutput(Field, Listing({"PEEQ", "PE"}), kprC_Static, "", false,
                                       false, false)),
            "*Element Output, directions=YES\nPEEQ, PE\n");
  EXPECT_EQ(
      DeckText(oif_ElementOutput(Field, Listing({"S"}), kprC_Static, "", false, false, false)),
      "*Element Output, directions=YES\nS, \n");
  EXPECT_EQ(
      DeckText(oif_ElementOutput(Field, Listing({"U"}), kprC_Static, "", false, false, false)), "");
  EXPECT_EQ(DeckText(oif_ElementOutput(Field, Listing({}), kprC_Static, "B", false, true, false)),
            "*Element Output, elset=B, directions=YES, variable=ALL\n");
}

// Each group of up to 16 section points repeats the card.
TEST(OutputCards, ThirtyThreeSectionPointsGiveThreeCards) {
  korC_OdbRequest request = Listing({"S"});
  for (int point = 1; point <= 33; ++point)
    request.sectionPoints.Append(point);
  EXPECT_EQ(DeckText(oif_ElementOutput(History, request, kprC_Static, "", false, false, false)),
            "*Element Output\n1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 13, 14, 15, 16\nS, \n"
            "*Element Output\n17, 18, 19, 20, 21, 22, 23, 24, 25, 26, 27, 28, 29, 30, 31, 32\n"
            "S, \n"
            "*Element Output\n33\nS, \n");
  EXPECT_EQ(DeckText(oif_ElementOutput(History, request, kprC_Static, "", true, false, false))
                .substr(0, 73),
            "*Element Output, variable=PRESELECT\n1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12");
}

TEST(OutputCards, WholeModelAndContactCards) {
  korC_OdbRequest energies =
      Listing({"ALLIE", "ALLKE", "ETOTAL", "ALLSE", "ALLPD", "ALLAE", "ALLCD", "ALLDMD", "ALLFD",
               "ALLVD", "ALLWK", "ALLCW", "ALLMW", "ALLIE", "DT", "U"});
  EXPECT_EQ(DeckText(oif_EnergyOutput(energies, kprC_ExplicitDynamics, "", false, false)),
            "*Energy Output\nALLIE, ALLKE, ETOTAL, ALLSE, ALLPD, ALLAE, ALLCD, ALLDMD, ALLFD, "
            "ALLVD, ALLWK, ALLCW, ALLMW\n");
  EXPECT_EQ(DeckText(oif_EnergyOutput(energies, kprC_Static, "Body", false, false)),
            "*Energy Output, elset=Body\nALLIE, ALLKE, ETOTAL, ALLSE, ALLPD, ALLAE, ALLCD, "
            "ALLDMD, ALLFD, ALLVD, ALLWK\n");
  EXPECT_EQ(DeckText(oif_IncrementationOutput(energies, kprC_ExplicitDynamics, false, false)),
            "*Incrementation Output\nDT, \n");
  EXPECT_EQ(DeckText(oif_IncrementationOutput(energies, kprC_Static, true, false)),
            "*Incrementation Output, variable=PRESELECT\n");
  korC_OdbRequest section = Listing({"SOF1", "SOM"});
  section.integratedSection = "Cut-1";
  EXPECT_EQ(DeckText(oif_IntegratedOutput(section, kprC_Static, false, false)),
            "*Integrated Output, section=Cut-1\nSOF, SOM\n");
  // Modal and radiation output know only ALL.
  EXPECT_EQ(DeckText(oif_ModalOutput(Listing({"GU"}), kprC_ModalDynamics, false)),
            "*Modal Output\nGU, \n");
  EXPECT_EQ(DeckText(oif_ModalOutput(Listing({}), kprC_ModalDynamics, false)), "");
  EXPECT_EQ(DeckText(oif_ModalOutput(Listing({}), kprC_ModalDynamics, true)),
            "*Modal Output, variable=ALL\n");
  EXPECT_EQ(
      DeckText(oif_RadiationOutput(Listing({"RADFL", "VFTOT"}), kprC_HeatTransfer, "Body", false)),
      "*Radiation Output, elset=Body\nRADFL, VFTOT\n");
  EXPECT_EQ(DeckText(oif_RadiationOutput(Listing({}), kprC_HeatTransfer, "", false)), "");

  korC_OdbRequest contact = Listing({"CSTRESS", "CPRESS", "CFN", "S"});
  EXPECT_EQ(DeckText(oif_ContactOutput(contact, kprC_Static, false, false, "", "", "", "", false)),
            "*Contact Output\nCSTRESS, CFN\n");
  EXPECT_EQ(DeckText(oif_ContactOutput(contact, kprC_Static, false, false, "Master", "Slave",
                                       "pair set", "", false)),
            "*Contact Output, master=Master, slave=Slave, cpset=\"pair set\"\nCSTRESS, CFN\n");
  contact.region.path = "rootAssembly.setData";
  contact.region.setIndex = 0;
  contact.region.set.type = res_NodeSet;
  EXPECT_EQ(DeckText(oif_ContactOutput(contact, kprC_Static, false, false, "", "", "", "Tip",
                                       /*flag=*/true)),
            "*Contact Output, nset=Tip\nCSTRESS, CFN\n");
  EXPECT_EQ(DeckText(oif_ContactOutput(contact, kprC_Static, true, false, "", "", "", "Tip",
                                       /*flag=*/false)),
            "*Contact Output, variable=PRESELECT\n");
  contact.region.set.type = res_FacetSet;
  EXPECT_EQ(DeckText(oif_ContactOutput(contact, kprC_ExplicitDynamics, false, false, "", "", "",
                                       "Top", false)),
            "*Contact Output, surface=Top\nCSTRESS, CFN\n");
}

TEST(OutputRequestBuilder, NoRequestsNoComment) {
  const std::string deck = StepOutput(R"("steps": [{"name": "Initial"},
      {"name": "S", "procedure": "static"}, {"name": "E", "procedure": "explicitDynamics"}])");
  EXPECT_EQ(deck.find("OUTPUT REQUESTS"), std::string::npos);
  EXPECT_NE(deck.find("*Static\n1., 1., 1e-05, 1.\n*Output, field, frequency=0\n"
                      "*Output, history, frequency=0\n*End Step\n"),
            std::string::npos)
      << deck;
  EXPECT_NE(deck.find("*Output, field, variable=PRESELECT, number interval=0\n"
                      "*Output, history, frequency=0\n*End Step\n"),
            std::string::npos)
      << deck;
}

// Two requests alike but for their names share one group; preselect and all
// on the whole model say everything on the "*Output" line; energies go to
// history.
TEST(OutputRequestBuilder, MergesAndWholeModelForms) {
  const std::string deck = StepOutput(R"("steps": [{"name": "Initial"},
      {"name": "Load", "procedure": "static"}],
    "fieldOutputRequests": {
      "F-B": {"createdIn": "Load", "region": "P-1.Tip", "variables": ["U", "RF"]},
      "F-A": {"createdIn": "Load", "region": "P-1.Tip", "variables": ["U", "RF"]},
      "F-C": {"createdIn": "Load", "variables": ["ALL"], "frequency": {"every": 10}},
      "F-D": {"createdIn": "Load"}},
    "historyOutputRequests": {
      "H-1": {"createdIn": "Load", "variables": ["ALLIE", "ALLKE"]},
      "H-2": {"createdIn": "Load"}})");
  EXPECT_EQ(OutputOfStep(deck, "Load"), R"(** 
** OUTPUT REQUESTS
** 
** 
** FIELD OUTPUT: F-A, F-B
** 
*Output, field
*Node Output, nset=P-1.Tip
U, RF
** 
** FIELD OUTPUT: F-D
** 
*Output, field, variable=PRESELECT
** 
** FIELD OUTPUT: F-C
** 
*Output, field, variable=ALL, frequency=10
** 
** HISTORY OUTPUT: H-1
** 
*Output, history
*Energy Output
ALLIE, ALLKE
** 
** HISTORY OUTPUT: H-2
** 
*Output, history, variable=PRESELECT
)");
}

// A preselect request on a set moves the variable option to its sub-cards,
// which come in their fixed order; listed requests of one frequency share
// the "*Output" line.
TEST(OutputRequestBuilder, SetRequestsAndSubCardOrder) {
  const std::string deck = StepOutput(R"("steps": [{"name": "Initial"},
      {"name": "Load", "procedure": "static"}],
    "fieldOutputRequests": {
      "Z": {"createdIn": "Load", "region": "P-1.Body", "variables": ["CSTRESS", "S", "U", "ENER"]},
      "Y": {"createdIn": "Load", "region": "P-1.Tip", "variables": ["RF", "S"]},
      "X": {"createdIn": "Load", "region": "P-1.Body", "frequency": {"every": 5}}})");
  EXPECT_EQ(OutputOfStep(deck, "Load"), R"(** 
** OUTPUT REQUESTS
** 
** 
** FIELD OUTPUT: Z
** 
*Output, field
*Element Output, elset=P-1.Body, directions=YES
CSTRESS, S, ENER
*Contact Output
CSTRESS, 
** 
** FIELD OUTPUT: Y
** 
*Node Output, nset=P-1.Tip
RF, 
** 
** FIELD OUTPUT: X
** 
*Output, field, frequency=5
*Element Output, elset=P-1.Body, directions=YES, variable=PRESELECT
*Energy Output, elset=P-1.Body, variable=PRESELECT
*Contact Output, variable=PRESELECT
*Output, history, frequency=0
)");
}

// A request propagates into the next step unchanged, another changes there,
// and a step with load cases drops history output.
TEST(OutputRequestBuilder, PropagatedAndChangedInTheSecondStep) {
  const std::string deck = StepOutput(R"("steps": [{"name": "Initial"},
      {"name": "One", "procedure": "static"},
      {"name": "Two", "procedure": "static", "loadCases": {"Case": {}}}],
    "fieldOutputRequests": {
      "Kept": {"createdIn": "One", "variables": ["U"], "frequency": {"every": 2}},
      "Changed": {"createdIn": "One", "variables": ["S"],
                  "steps": {"Two": {"frequency": {"intervals": 4}, "variables": ["E"]}}}},
    "historyOutputRequests": {"H": {"createdIn": "One"}})");
  EXPECT_EQ(OutputOfStep(deck, "One"), R"(** 
** OUTPUT REQUESTS
** 
** 
** FIELD OUTPUT: Changed
** 
*Output, field
*Element Output, directions=YES
S, 
** 
** FIELD OUTPUT: Kept
** 
*Output, field, frequency=2
*Node Output
U, 
** 
** HISTORY OUTPUT: H
** 
*Output, history, variable=PRESELECT
)");
  EXPECT_EQ(OutputOfStep(deck, "Two"), R"(** 
** OUTPUT REQUESTS
** 
** 
** FIELD OUTPUT: Kept
** 
*Output, field, frequency=2
*Node Output
U, 
** 
** FIELD OUTPUT: Changed
** 
*Output, field, number interval=4
*Element Output, directions=YES
E, 
*Output, history, frequency=0
** 
** LOAD CASES
** 
*Load Case, name=Case
*Boundary, op=NEW
*End Load Case
)");
}
