#pragma once

#include "base/cow_COW.h"
#include "base/cow_String.h"
#include "model/datums.h"
#include "model/steps.h"
#include "qkw/qkw_Model.h"

/// The per-deck context that all builders share: the model facade, the deck
/// format, the numbering of nodes and elements per instance, the instance
/// behind a mesh, and whether the job is explicit. Everything it computes
/// comes from the mesh and the steps before any builder runs.
class qkw_ModelInfo {
public:
  qkw_ModelInfo() = default;
  virtual ~qkw_ModelInfo() = default;
  qkw_ModelInfo(const qkw_ModelInfo&) = delete;
  qkw_ModelInfo& operator=(const qkw_ModelInfo&) = delete;

  const qkw_Model& Model() const { return *model_; }

  /// The element offset of the instance behind a mesh index.
  int AssyElementOffsetsID(int meshIndex) const {
    return AssyElementOffsets(InstanceName(meshIndex, false));
  }
  /// The node offset of the instance behind a mesh index.
  int AssyNodeOffsetsID(int meshIndex) const {
    return AssyNodeOffsets(InstanceName(meshIndex, false));
  }
  /// Name suffixes of reference and attachment points.
  static const char* RefPtSuffix() { return "-RefPt_"; }
  static const char* AttachmentPtSuffix() { return "-AttPt_"; }

  virtual bool V6Format() const { return true; }
  virtual int AssyElementOffsets(const cow_String& instance) const = 0;
  virtual int AssyNodeOffsets(const cow_String& instance) const = 0;
  virtual int GetNewNodeIndex(const cow_String& instance, bool commit) = 0;
  virtual int IncrementNodeIndex(const cow_String& instance, int count) = 0;
  virtual int GetNewElementIndex(const cow_String& instance, bool commit) = 0;
  virtual int IncrementElementIndex(const cow_String& instance, int count) = 0;
  /// The name of the instance whose mesh has that index ("" for the
  /// assembly's own mesh). The flag is not used.
  virtual cow_String InstanceName(int meshIndex, bool unused) const = 0;
  /// The deck name of an orientation on a datum: the datum's name, with
  /// "_" + `suffix` + "_" appended when `suffix` is not empty and `angle`
  /// is not 0, quoted as a deck name. Users of one datum without an
  /// additional rotation thus share one orientation.
  virtual cow_String GetOrientationName(const dtmC_DatumRef& datum, double angle,
                                        cow_String suffix) const = 0;
  virtual kprC_AnalysisProductEnm AnalysisProduct() const = 0;
  /// The number of nodes of all meshes together.
  virtual int TeachingNodes() const = 0;
  virtual bool ExplicitJob() const = 0;

protected:
  cow_ArrayCOW<qkw_Model> model_;
};
