#include "oif/oif_Step.h"

#include "base/nex_Exception.h"
#include "base/utl_Stream.h"
#include "oif/oif_Parameters.h"
#include "qkw/qkw_QuorvexName.h"

#include <type_traits>

using namespace keydeck;

qkw_Keyword* oif_Step::Copy() const { return new oif_Step(*this); }

namespace {

// How a procedure writes geometric nonlinearity: "sticky" once on stays on
// and never says NO; "difference" says YES or NO where the step differs from
// what is in force.
enum class NlgeomForm { None, Sticky, Difference };

template <class K> constexpr NlgeomForm NlgeomFormOf() {
  if constexpr (std::is_same_v<K, kprC_AnnealStep> ||
                std::is_same_v<K, kprC_ExplicitDynamicsStep> ||
                std::is_same_v<K, kprC_TempDisplacementDynamicsStep>)
    return NlgeomForm::Difference;
  else if constexpr (std::is_base_of_v<kprC_NlgeomOption, K>)
    return NlgeomForm::Sticky;
  else
    return NlgeomForm::None;
}

void WriteExtrapolation(utl_Stream& s, kprC_ExtrapolationEnm value,
                        kprC_ExtrapolationEnm omitWhen) {
  if (value == omitWhen)
    return;
  WriteParameter(s, "extrapolation=",
                 value == kprC_ParabolicExtrapolation ? EnumDeckText(value) : cow_String("NO"));
}

// The general rule: the step's own matrix storage.
void WriteUnsymm(utl_Stream& s, kprC_MatrixStorageEnm storage) {
  if (storage != kprC_SolverDefaultStorage)
    WriteParameter(s, "unsymm=", storage);
}

template <class K> void WriteUnsymmOf(utl_Stream& s, const K& step) {
  if constexpr (std::is_same_v<K, kprC_CoupledTempDisplacementStep> ||
                std::is_same_v<K, kprC_CoupledThermalElectricStep>) {
    if (step.solutionTechnique == kprC_Separated)
      WriteUnsymm(s, step.matrixStorage);
  } else if constexpr (std::is_same_v<K, kprC_SoilsStep>) {
    if (step.response == kprC_Consolidation)
      WriteUnsymm(s, step.matrixStorage);
  } else if constexpr (std::is_base_of_v<kprC_MatrixStorageOption, K>) {
    WriteUnsymm(s, step.matrixStorage);
  }
}

} // namespace

void oif_Step::WriteSticky(utl_Stream& s, bool nlgeom) const {
  if (previousNlgeom_ || nlgeom)
    WriteParameter(s, "nlgeom=", "YES");
}

void oif_Step::WriteDifference(utl_Stream& s, kprC_Step::NlgeomEnm nlgeom) const {
  const bool on = nlgeom != kprC_Step::NlgeomOff;
  if (on != previousNlgeom_)
    WriteParameter(s, "nlgeom=", YesNo(on));
}

template <class K> void oif_Step::WriteParameters(utl_Stream& s, const K& step) const {
  if constexpr (NlgeomFormOf<K>() == NlgeomForm::Difference)
    WriteDifference(s, step.Nlgeom());
  else if constexpr (std::is_same_v<K, kprC_GeostaticStep>)
    WriteSticky(s, step.Nlgeom() != kprC_Step::NlgeomOff);
  else if constexpr (NlgeomFormOf<K>() == NlgeomForm::Sticky)
    WriteSticky(s, step.nlgeom);
  if constexpr (std::is_same_v<K, kprC_StaticRiksStep>)
    WriteExtrapolation(s, step.extrapolation, kprC_LinearExtrapolation);
  if constexpr (requires { K::DefaultExtrapolation; }) {
    WriteExtrapolation(s, step.extrapolation, K::DefaultExtrapolation);
    if (step.amplitude != K::DefaultAmplitude)
      WriteParameter(s, "amplitude=", FindEnumEntry(step.amplitude)->deckText.data());
  }
  if constexpr (requires { step.maxNumInc; })
    WriteParameter(s, "inc=", step.maxNumInc, 100);
  WriteUnsymmOf(s, step);
}

void oif_Step::Write(utl_Stream& s) const {
  s << "*Step, name=" << qkw_QuorvexName(name_, false);
  const kprC_AnalysisStep& step = RecordCast<kprC_AnalysisStep>(*step_);
  if (step.Perturbation()) {
    WriteFlag(s, "perturbation", true);
  } else {
    const bool known = VisitKindClass<kprC_AnalysisStep>(
        static_cast<kprC_ProcedureEnm>(step.ProcedureType()),
        [&](auto type) { WriteParameters(s, RecordCast<typename decltype(type)::type>(step)); });
    if (!known)
      Raise("Unimplemented function to write out *Step card");
  }
  s.LineBreak();
  if (!step.description.Empty())
    s << step.description << endl;
}
