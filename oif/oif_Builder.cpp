#include "oif/oif_Builder.h"

#include "base/qio_ostream.h"
#include "base/utl_Stream.h"
#include "oif/oif_ModelInfo.h"

#include <chrono>
#include <cstdio>
#include <fcntl.h>
#include <initializer_list>
#include <unistd.h> // close

namespace {

using Clock = std::chrono::steady_clock;

double SecondsSince(Clock::time_point start) {
  return std::chrono::duration<double>(Clock::now() - start).count();
}

/// Removes `name`, then creates it anew for writing; null on failure. The
/// new file is never one that appeared at the name after the removal.
std::FILE* OpenNewFile(const char* name) {
  std::remove(name);
  const int descriptor = open(name, O_WRONLY | O_CREAT | O_EXCL | O_NOFOLLOW | O_CLOEXEC, 0666);
  if (descriptor < 0)
    return nullptr;
  std::FILE* const file = fdopen(descriptor, "w");
  if (file == nullptr)
    close(descriptor);
  return file;
}

} // namespace

oif_Builder::oif_Builder(oif_ModelInfo& info)
    : jobKeywords_(info), instance_(info), material_(info), part_(info), region_(info), step_(info),
      partAttributes_(info), amplitude_(info), transform_(info), boundaryCondition_(info),
      load_(info), field_(info), constraint_(info), output_(info), final_(info),
      v6Format_(info.V6Format()), model_(&keydeck::FacadeOf(info.Model())) {}

bool oif_Builder::WriteInputFile(const cow_String& fileName, keydeck::DeckPhaseTimes* times) {
  std::FILE* const file = OpenNewFile(fileName.CStr());
  if (file == nullptr)
    return false;
  qio_ofstreamDeck os(file, /*owns=*/true);
  WriteInputFile(os, times);
  return true;
}

void oif_Builder::WriteInputFile(qio_ostream& os, keydeck::DeckPhaseTimes* times) {
  utl_Stream s(os, 131, 6, 6);

  const Clock::time_point buildStart = Clock::now();
  BuildAll();
  const Clock::time_point writeStart = Clock::now();
  WriteDeck(s, WritingList());
  s.Close();
  if (times != nullptr)
    *times = {std::chrono::duration<double>(writeStart - buildStart).count(),
              SecondsSince(writeStart)};
}

void oif_Builder::BuildAll() {
  // The one hard rule of this order: the final builder runs last.
  jobKeywords_.Build();
  part_.Build();
  material_.Build();
  instance_.Build();
  step_.Build();
  region_.Build();
  partAttributes_.Build();
  amplitude_.Build();
  transform_.Build();
  constraint_.Build();
  boundaryCondition_.Build();
  load_.Build();
  field_.Build();
  output_.Build();
  final_.Build();
}

oif_Builder::BuilderList oif_Builder::WritingList() const {
  // The writing list fixes the order of cards inside every block of the deck.
  BuilderList builders;
  for (const qkw_BuilderComponent* builder : std::initializer_list<const qkw_BuilderComponent*>{
           &part_, &instance_, &step_, &region_, &partAttributes_, &amplitude_, &material_,
           &transform_, &constraint_, &boundaryCondition_, &load_, &field_, &output_, &final_})
    builders.Append(cow_ArrayCOW<qkw_BuilderComponent>(*builder));
  return builders;
}

void oif_Builder::WriteDeck(utl_Stream& s, const BuilderList& builders) const {
  WriteInput(s, jobKeywords_.ModelDefinition());
  WritePartDefinitions(s, builders);
  WritePartInstanceDefinitions(s, builders);
  WriteAssemblyDefinitions(s, builders);
  WriteOtherModelDefinitions(s, builders);
  WriteStepDefinitions(s, builders);
}

void oif_Builder::WriteHeading(utl_Stream& s, const cow_String& title) const {
  s << "**" << endl << "** " << title << endl << "**" << endl;
}

void oif_Builder::WriteInput(utl_Stream& s, const KeywordList& cards) const {
  for (const cow_ArrayCOW<qkw_Keyword>& card : cards)
    card->Write(s);
}

void oif_Builder::WritePartDefinitions(utl_Stream& s, const BuilderList& builders) const {
  if (v6Format_)
    WriteHeading(s, "PARTS");
  for (const auto& [partName, part] : model_->Parts())
    for (const auto& builder : builders)
      WriteInput(s, builder->PartDefinition(partName));
}

void oif_Builder::WritePartInstanceDefinitions(utl_Stream& s, const BuilderList& builders) const {
  if (v6Format_) {
    WriteHeading(s, "ASSEMBLY");
    s << "*Assembly, name=" << model_->Model().rootAssembly().name() << endl;
  }
  for (const auto& [instanceName, instance] : model_->Instances())
    for (const auto& builder : builders)
      WriteInput(s, builder->InstanceDefinition(instanceName));
}

void oif_Builder::WriteAssemblyDefinitions(utl_Stream& s, const BuilderList& builders) const {
  for (const auto& builder : builders)
    WriteInput(s, builder->AssemblyDefinition());
}

void oif_Builder::WriteOtherModelDefinitions(utl_Stream& s, const BuilderList& builders) const {
  for (const auto& builder : builders)
    WriteInput(s, builder->ModelDefinition());
}

void oif_Builder::WriteStepDefinitions(utl_Stream& s, const BuilderList& builders) const {
  const kprC_StepContainer& steps = model_->Steps();
  kprC_StepContainerIT it(steps);
  int count = 0;
  for (it.First(); !it.IsDone(); it.Next(), ++count) {
    const cow_String& stepName = it.CurrentKey();
    for (const auto& builder : builders)
      WriteInput(s, builder->StepDefinition(stepName, cow_String()));
    if (count == 0) // the initial step has no load cases
      continue;
    const kprC_AnalysisStep& step = keydeck::RecordCast<kprC_AnalysisStep>(it.CurrentValue());
    for (const cow_String& loadCaseName : step.loadCases.Keys()) {
      if (loadCaseName.Empty())
        continue;
      for (const auto& builder : builders)
        WriteInput(s, builder->StepDefinition(stepName, loadCaseName));
    }
  }
}
