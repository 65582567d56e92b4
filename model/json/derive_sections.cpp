#include "model/json/derive_sections.h"

#include "model/json/json_text.h"

namespace keydeck {

namespace {

void CheckSection(const std::string& path, const kseC_Section& section, const ddb_Model& model,
                  LoadErrors& errors) {
  if (const std::optional<RecordFault> fault = section.CheckData())
    errors.Add(path + "/" + fault->where, fault->what);
  std::vector<std::pair<std::string, cow_String>> materials;
  section.Materials(materials);
  for (const auto& [where, material] : materials)
    if (!material.Empty() && !model.material().IsMember(material))
      errors.Add(path + "/" + where,
                 "no material " + QuotedJson(material.View()) + " in the model");
  if (section.DynTypeId() != kseC_BeamSection::TypeId())
    return;
  const cow_String& profile = RecordCast<kseC_BeamSection>(section).profileName;
  if (!model.profiles().IsMember(profile))
    errors.Add(path + "/profile", "no profile " + QuotedJson(profile.View()) + " in the model");
}

} // namespace

void CheckSections(std::string_view modelPath, const ddb_Model& model, LoadErrors& errors) {
  const std::string path(modelPath);
  // A record that could not be read whole has had its say already.
  for (const auto& [name, section] : model.sections())
    if (const std::string at = path + "/sections/" + std::string(name.View());
        !errors.AnyAtOrUnder(at))
      CheckSection(at, *section, model, errors);
  for (const auto& [name, profile] : model.profiles()) {
    const std::string at = path + "/profiles/" + std::string(name.View());
    if (errors.AnyAtOrUnder(at))
      continue;
    if (const std::optional<RecordFault> fault = profile->CheckData())
      errors.Add(at + "/" + fault->where, fault->what);
  }
}

void AddSectionWarnings(std::string_view modelName, const ddb_Model& model,
                        std::vector<std::string>& warnings) {
  for (const auto& [partName, part] : model.part()) {
    const ptoC_PartAttributeList& assignments = part.sectionAssignments_;
    for (int i = 0; i < assignments.Size(); ++i) {
      const cow_String& section = assignments.ConstGet(i).sectionName();
      if (model.sections().IsMember(section))
        continue;
      std::string warning = "models/";
      warning.append(modelName).append("/parts/").append(partName.View());
      warning.append("/sectionAssignments/").append(std::to_string(i)).append("/section: no ");
      warning.append("section ").append(QuotedJson(section.View()));
      warning.append(" in the model, so the deck writes the region's comment and no section card");
      warnings.push_back(std::move(warning));
    }
  }
}

} // namespace keydeck
