#include "oif/oif_Element.h"

#include "base/utl_Stream.h"

#include <algorithm>
#include <charconv>
#include <string_view>

namespace {

/// Columns of an integer's decimal text.
int DecimalWidth(int value) {
  char digits[16];
  return static_cast<int>(std::to_chars(digits, digits + sizeof digits, value).ptr - digits);
}

} // namespace

oif_Element::oif_Element(int first, int second, const cow_String& type, const cow_String& elset)
    : first_(first), second_(second), elset_(elset), literalCard_(true), type_(type) {}

oif_Element::oif_Element(int first, int second, const ddb_ElementClass& elementClass,
                         const cow_String& elset)
    : first_(first), second_(second), elementClass_(elementClass), elset_(elset),
      writeHeader_(true), type_(elementClass.elementTypeLabel()) {}

oif_Element::oif_Element(int first, int second, const ddb_ElementClass& elementClass,
                         const ddb_Mesh& mesh, bool)
    : first_(first), second_(second), elementClass_(elementClass), mesh_(mesh),
      type_(elementClass.elementTypeLabel()) {}

qkw_Keyword* oif_Element::Copy() const { return new oif_Element(*this); }

void oif_Element::Write(utl_Stream& s) const {
  if (literalCard_ || writeHeader_) {
    s << "*Element, type=" << type_;
    if (!elset_.Empty())
      s << ", elset=" << elset_;
    s << endl;
  }
  if (literalCard_) {
    s << first_ << ", " << second_ << endl;
    return;
  }
  WriteConnectivity(s, mesh_.nodeData().UserNodeLabels());
  if (writeHeader_)
    s.Flush();
}

void oif_Element::WriteConnectivity(utl_Stream& s, const cow_List<int>& nodeLabels) const {
  const cow_List<int>& elementLabels = elementClass_.userElementLabelsAsFlatArray();
  const cow_List<int>& nodeIndices = elementClass_.elementConnectivity();
  const int nodesPerElement = elementClass_.numNodesPerElement();
  const int* const indices = nodeIndices.GetCArray();
  const int entries = nodeIndices.Size();

  // Widths are fixed once per class: the widest label in use decides them.
  // This pass also checks every index, so the writing pass reads unchecked.
  int widestNode = 0;
  for (int k = 0; k < entries; ++k)
    widestNode = std::max(widestNode, nodeLabels.ConstGet(indices[k]));
  const int nodeWidth = entries == 0 ? 1 : std::min(DecimalWidth(widestNode) + 1, 7);
  int widestElement = 0;
  for (const int label : elementLabels)
    widestElement = std::max(widestElement, label);
  const int labelWidth = DecimalWidth(widestElement);
  constexpr std::string_view Blanks = "            "; // wider than any label and its comma
  const std::string_view indent = Blanks.substr(0, static_cast<std::size_t>(labelWidth) + 1);

  const int* const labels = nodeLabels.GetCArray();
  for (int e = 0; e < elementLabels.Size(); ++e) {
    s.Print(elementLabels.UncheckedConstGet(e), labelWidth) << ",";
    const int* const row = indices + static_cast<std::ptrdiff_t>(e) * nodesPerElement;
    for (int j = 1; j <= nodesPerElement; ++j) {
      const int node = labels[row[j - 1]];
      if (j == nodesPerElement) {
        // The last node gets no indent even when it starts a line; the layout wants it so.
        s.Print(node, nodeWidth) << "\n";
        continue;
      }
      const int r = (j + 1) % 16;
      if (r == 1)
        s.Print(indent);
      s.Print(node, nodeWidth) << (r == 0 ? ",\n" : ",");
    }
  }
}
