#include "oif/oif_BlockHeader.h"

#include "oif/oif_Comment.h"
#include "oif/oif_RawKeyword.h"

oif_BlockHeader::oif_BlockHeader(const cow_String& title)
    : header_(oif_Comment("\n" + title + "\n")), blank_(oif_RawKeyword(cow_String())) {}

const qkw_Keyword& oif_BlockHeader::FirstTime(bool& done) {
  if (done)
    return *blank_;
  done = true;
  return *header_;
}

const qkw_Keyword& oif_BlockHeader::AssyHeader() { return FirstTime(assemblyHeaderDone_); }
const qkw_Keyword& oif_BlockHeader::ModelHeader() { return FirstTime(modelHeaderDone_); }

const qkw_Keyword& oif_BlockHeader::StepHeader(const cow_String& stepName) {
  if (stepsHeaded_.IsMember(stepName))
    return *blank_;
  stepsHeaded_.Insert(stepName, 1);
  return *header_;
}
