#pragma once

#include "base/cow_String.h"
#include "model/output.h"
#include "model/step_requests.h"
#include "qkw/qkw_BuilderComponent.h"

#include <optional>

class kprC_AnalysisStep;
class oif_ModelInfo;

/// Files the output requests of every analysis step under the comment
/// "OUTPUT REQUESTS": the field requests in force in the step, then the
/// history requests, each channel turned into normalised requests, equal
/// ones merged (their labels joined by ", "), sorted, and printed as
/// "*Output" groups with their sub-cards. The step's restart, diagnostic
/// print and monitor come first under the same comment. A channel without requests gets
/// the line that asks for no output, since the solver would otherwise write
/// its defaults. History requests need a step without load cases.
class oif_OutputRequestBuilder : public qkw_BuilderComponent {
public:
  explicit oif_OutputRequestBuilder(oif_ModelInfo& info);
  void Build() override;
  qkw_BuilderComponent* Copy() const override;

private:
  /// The step's restart, diagnostic print and monitor, in that order. The
  /// print is compared with `previousPrint`, the last print of the steps
  /// before, which it then replaces.
  void AddStepRequests(const kprC_AnalysisStep& step, const cow_String& stepName,
                       const cow_String& monitorSet,
                       std::optional<kprC_DiagnosticPrint>& previousPrint);
  /// The node set of the step's monitor in the assembly's scope; empty for none.
  cow_String MonitorSetName(const kprC_AnalysisStep& step) const;
  /// The requests of one channel in force in step `stepName`, merged.
  template <class Record>
  korC_OdbChannel GetChannel(const kprC_PropagatingContainer<Record>& records, bool isField,
                             const cow_String& stepName, unsigned procedure) const;
  void CreateOdbRequests(const korC_OdbChannel& channel, const cow_String& stepName,
                         double timePeriod, unsigned procedure);
  void RequestNoOutput(const korC_OdbChannel& channel, const cow_String& stepName,
                       double timePeriod, unsigned procedure);
  /// False when the request's region can hold none of its variables.
  bool HasWritableVariables(const korC_OdbRequest& request, unsigned procedure) const;
  void AddOutputSuboptions(const korC_OdbRequest& request, const korC_OdbChannel& channel,
                           const cow_String& stepName, const cow_String& name, unsigned procedure,
                           bool preselect, bool all);
  void AddNodeOutput(const korC_OdbRequest& request, const cow_String& stepName,
                     const cow_String& name, unsigned procedure, bool preselect, bool all);
  void AddElementOutput(const korC_OdbRequest& request, const korC_OdbChannel& channel,
                        const cow_String& stepName, const cow_String& name, unsigned procedure,
                        bool preselect, bool all);
  /// The name a request's sub-cards give its region: the set or surface in
  /// the assembly's scope, or the first interaction.
  cow_String DomainName(const korC_OdbRequest& request) const;
};
