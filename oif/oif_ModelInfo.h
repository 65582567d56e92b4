#pragma once

#include "base/cow_IntTable.h"
#include "base/cow_Map.h"
#include "model/database.h"
#include "oif/oif_Model.h"
#include "qkw/qkw_ModelInfo.h"

/// The per-deck context over one database model. The constructor builds the
/// facade and computes the mesh and step tables at once.
///
/// Each instance numbers its own nodes and elements, so the offsets are all
/// 0; numbers that a builder invents start behind the instance's own count.
/// The empty name is the key of the assembly's own mesh in every table.
class oif_ModelInfo : public qkw_ModelInfo {
public:
  explicit oif_ModelInfo(const ddb_Model& model);

  bool V6Format() const override { return v6Format_; }
  int AssyElementOffsets(const cow_String& instance) const override;
  int AssyNodeOffsets(const cow_String& instance) const override;
  int GetNewNodeIndex(const cow_String& instance, bool commit) override;
  int IncrementNodeIndex(const cow_String& instance, int count) override;
  int GetNewElementIndex(const cow_String& instance, bool commit) override;
  int IncrementElementIndex(const cow_String& instance, int count) override;
  cow_String InstanceName(int meshIndex, bool unused) const override;
  cow_String GetOrientationName(const dtmC_DatumRef& datum, double angle,
                                cow_String suffix) const override;
  kprC_AnalysisProductEnm AnalysisProduct() const override;
  int TeachingNodes() const override { return totalNodes_; }
  bool ExplicitJob() const override { return explicitJob_; }

private:
  void SetMeshData();
  void AddMesh(const cow_String& name, const ddb_Mesh& mesh);
  void SetStepData();
  int NewIndex(cow_Map<cow_String, int>& counts, const cow_String& instance, bool commit, int total,
               int& added);
  int Increment(cow_Map<cow_String, int>& counts, const cow_String& instance, int count, int total,
                int& added);

  ddb_Model database_;
  bool v6Format_ = false;
  cow_Map<cow_String, int> elementOffsets_;
  cow_Map<cow_String, int> nodeOffsets_;
  int totalNodes_ = 0;
  int totalElements_ = 0;
  int newElements_ = 0;
  int newNodes_ = 0;
  cow_Map<cow_String, int> elementCounts_;
  cow_Map<cow_String, int> nodeCounts_;
  bool explicitJob_ = false;
  cow_IntTable<cow_String> instanceByMesh_;
};
