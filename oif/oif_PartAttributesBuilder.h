#pragma once

#include "base/cow_List.h"
#include "base/cow_String.h"
#include "model/element_controls.h"
#include "model/properties.h"
#include "qkw/qkw_BuilderComponent.h"

#include <map>
#include <vector>

class oif_ModelInfo;
class ddb_PartInstance;
class gsl_Vector;
class kseC_Section;

/// The section cards of each part instance. Every element carries four
/// attributes: a section assignment, element controls, a beam orientation
/// and a material orientation. Elements of equal attributes form one class;
/// per class the instance gets, in this order, the material orientation (once
/// per instance), the comment "Region: (section:set)" with its controls and
/// orientations, an "*Elset" named set + "_I" + class number unless the class
/// is its assignment's whole set, the comment "Section: " and the section
/// cards. Elements without a section get nothing. The distinct non-default
/// element controls become "*Section Controls" named "EC-" + number in the
/// model data, after an "ELEMENT CONTROLS" comment.
class oif_PartAttributesBuilder : public qkw_BuilderComponent {
public:
  explicit oif_PartAttributesBuilder(oif_ModelInfo& info);
  void Build() override;
  qkw_BuilderComponent* Copy() const override;

  static cow_String PartSetString() { return "_I"; }
  static cow_String RegionString() { return "Region: "; }

private:
  /// The attributes of one instance's elements, in mesh order, rebuilt per
  /// instance.
  struct InstanceArrays {
    std::vector<bme_Property> properties;
    std::vector<int> classStarts; ///< the position of each element class's first element
    std::map<int, int> assignmentElementCount; ///< members of each assignment's set
  };
  /// What a section card needs of its class.
  struct ClassAttributes {
    cow_String setName;
    int beamOriIndex = bme_Property::Unset;
    cow_String orientationName;
    cow_String controlsName;
    bme_ElemCtrlParams params;
    double offset = 0;
  };

  void InitializePropertyArray(const ddb_PartInstance& instance, InstanceArrays& arrays) const;
  void SetSectionsInArray(const ddb_PartInstance& instance, InstanceArrays& arrays) const;
  void SetElemCtrlInArray(const ddb_PartInstance& instance, InstanceArrays& arrays);
  void SetBeamOriInArray(const ddb_PartInstance& instance, InstanceArrays& arrays) const;
  void SetMatOriInArray(const ddb_PartInstance& instance, InstanceArrays& arrays) const;
  /// Classes the elements; a single class takes the property array over.
  void ProcessPropertyArray(const ddb_PartInstance& instance, InstanceArrays& arrays);
  void CreateSetsAndAttributes(const ddb_PartInstance& instance, const InstanceArrays& arrays,
                               const bme_MapPropertyArray& classes);
  void CreateClassAttributes(const ddb_PartInstance& instance, const InstanceArrays& arrays,
                             const bme_MapPropertyArray& classes, int classKey, int classNumber);
  /// The material orientation's deck name, written once per instance; its
  /// label for the comment goes to `label`.
  cow_String CreateMaterialOrientation(const ddb_PartInstance& instance, int index,
                                       cow_String& label);
  void CreateSection(const ddb_PartInstance& instance, const cow_String& sectionName,
                     const ClassAttributes& attributes);
  void CreateSolidSection(const cow_String& instance, const kseC_Section& section,
                          const ClassAttributes& attributes);
  void CreateTrussSection(const cow_String& instance, const kseC_Section& section,
                          const ClassAttributes& attributes);
  void CreateShellSection(const cow_String& instance, const kseC_Section& section,
                          const ClassAttributes& attributes);
  void CreateMembraneSection(const cow_String& instance, const kseC_Section& section,
                             const ClassAttributes& attributes);
  void CreateGasketSection(const cow_String& instance, const kseC_Section& section,
                           const ClassAttributes& attributes);
  void CreatePointSection(const cow_String& instance, const kseC_Section& section,
                          const ClassAttributes& attributes);
  void CreateBeamSection(const ddb_PartInstance& instance, const cow_String& sectionName,
                         const kseC_Section& section, const ClassAttributes& attributes);
  void CreateHourglassStiffness(const cow_String& instance, const bme_ElemCtrlParams& params);
  void CreateElementControls();
  /// The library of the default controls: 1 for the implicit solver's jobs,
  /// 2 for the explicit solver's, 0 for jobs of both.
  int DefaultLibrary() const;

  std::map<int, bme_ElemCtrlParams> elemCtrlParams_; ///< by key, through all instances
  int nextElemCtrlIndex_ = 0;
  cow_List<cow_String> orientationNames_; ///< written in the current instance
};
