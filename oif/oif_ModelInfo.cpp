#include "oif/oif_ModelInfo.h"

#include "qkw/qkw_QuorvexName.h"

oif_ModelInfo::oif_ModelInfo(const ddb_Model& model) : database_(model) {
  model_ = cow_ArrayCOW<qkw_Model>(new oif_Model(model, cow_String()));
  v6Format_ = true;
  SetMeshData();
  SetStepData();
}

void oif_ModelInfo::SetMeshData() {
  for (const auto& [name, instance] : database_.rootAssembly().instance()) {
    if (!instance->IsPartInstance())
      continue;
    AddMesh(name, keydeck::RecordCast<ddb_PartInstance>(*instance).mesh());
  }
  const ddb_Assembly& assembly = database_.rootAssembly();
  if (assembly.hasMesh()) {
    AddMesh(cow_String(), assembly.mesh());
    return;
  }
  for (auto* table : {&nodeOffsets_, &elementOffsets_, &nodeCounts_, &elementCounts_})
    table->Insert(cow_String(), 0);
}

void oif_ModelInfo::AddMesh(const cow_String& name, const ddb_Mesh& mesh) {
  instanceByMesh_.Insert(mesh.meshIndex(), name);
  const int nodes = mesh.nodeData().NumNodes();
  const int elements = mesh.elementData().numElements();
  totalNodes_ += nodes;
  totalElements_ += elements;
  nodeOffsets_.Insert(name, 0);
  elementOffsets_.Insert(name, 0);
  nodeCounts_.Insert(name, nodes);
  elementCounts_.Insert(name, elements);
}

void oif_ModelInfo::SetStepData() {
  explicitJob_ = false;
  const kprC_StepContainer& steps = database_.step().container();
  // The initial step never counts: one explicit analysis step makes the job explicit.
  for (int i = 1; i < steps.Size() && !explicitJob_; ++i)
    explicitJob_ = steps.StepAt(i).isExplicit();
}

int oif_ModelInfo::AssyElementOffsets(const cow_String& instance) const {
  return elementOffsets_.ConstGet(instance);
}
int oif_ModelInfo::AssyNodeOffsets(const cow_String& instance) const {
  return nodeOffsets_.ConstGet(instance);
}

int oif_ModelInfo::NewIndex(cow_Map<cow_String, int>& counts, const cow_String& instance,
                            bool commit, int total, int& added) {
  if (!V6Format()) {
    const int index = total + added + 1;
    if (commit)
      ++added;
    return index;
  }
  const int index = counts.ConstGet(instance) + 1;
  if (commit)
    counts.Get(instance) = index;
  return index;
}

int oif_ModelInfo::Increment(cow_Map<cow_String, int>& counts, const cow_String& instance,
                             int count, int total, int& added) {
  if (!V6Format()) {
    added += count;
    return total + added;
  }
  return counts.Get(instance) += count;
}

int oif_ModelInfo::GetNewNodeIndex(const cow_String& instance, bool commit) {
  return NewIndex(nodeCounts_, instance, commit, totalNodes_, newNodes_);
}
int oif_ModelInfo::IncrementNodeIndex(const cow_String& instance, int count) {
  return Increment(nodeCounts_, instance, count, totalNodes_, newNodes_);
}
int oif_ModelInfo::GetNewElementIndex(const cow_String& instance, bool commit) {
  return NewIndex(elementCounts_, instance, commit, totalElements_, newElements_);
}
int oif_ModelInfo::IncrementElementIndex(const cow_String& instance, int count) {
  return Increment(elementCounts_, instance, count, totalElements_, newElements_);
}

cow_String oif_ModelInfo::InstanceName(int meshIndex, bool) const {
  return instanceByMesh_.ConstGet(meshIndex);
}

cow_String oif_ModelInfo::GetOrientationName(const dtmC_DatumRef& datum, double angle,
                                             cow_String suffix) const {
  cow_String name = database_.datum(datum.Id()).Shortcut();
  if (!suffix.Empty() && angle != 0.0)
    name = name + "_" + suffix + "_";
  return qkw_QuorvexName(name, false).Printable();
}

kprC_AnalysisProductEnm oif_ModelInfo::AnalysisProduct() const {
  return database_.step().AnalysisProduct();
}
