#include "oif/oif_Writer.h"

#include "model/database.h"
#include "oif/oif_Builder.h"
#include "oif/oif_ModelInfo.h"

void oif_Writer::WriteInputFile(const char* jobName) {
  const cow_String modelName("Default Model");
  const ddb_Model& model = odb_.ddb().model(modelName);
  oif_ModelInfo info(model);
  const cow_String fileName = cow_String(jobName) + ".inp";
  oif_Builder builder(info);
  builder.WriteInputFile(fileName);
}
