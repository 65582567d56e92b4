#pragma once

// The benchmark model: a block of 8-node bricks on an N x N x N grid of nodes
// (N = 100 gives 1,000,000 nodes and 970,299 bricks), one part, one instance,
// an initial step and one static step and, unless left out, a node set and an
// element set of every tenth label, in generate form.
//
// Coordinates are spaced 0.37 apart from an origin off zero, so that most of
// them carry four or five significant digits, as a mesher's would; each is
// written as the shortest text that reads back as the same float. Rows of
// coordinates and connectivity go one to a line, labels sixteen to a line,
// without indentation: a compact file, so that the memory figure, taken
// against the file's size, is not flattered by padding.

#include <charconv>
#include <cstddef>
#include <cstdio>
#include <cstring>
#include <memory>
#include <string>

namespace keydeck_bench {

struct ModelShape {
  int size = 100; // nodes along each edge of the block
  /// A node set and an element set of every tenth label, and an element set
  /// of all elements with a solid section.
  bool withSets = true;
};

/// Fills a buffer sized once from a bound; no check per value.
class TextBuffer {
public:
  explicit TextBuffer(std::size_t bound) : data_(new char[bound]), pos_(data_.get()) {}

  void Text(const char* text) {
    const std::size_t size = std::strlen(text);
    std::memcpy(pos_, text, size);
    pos_ += size;
  }
  void Integer(long long value) { pos_ = std::to_chars(pos_, pos_ + 24, value).ptr; }
  void Real(float value) { pos_ = std::to_chars(pos_, pos_ + 32, value).ptr; }
  const char* Data() const { return data_.get(); }
  std::size_t Size() const { return static_cast<std::size_t>(pos_ - data_.get()); }

private:
  std::unique_ptr<char[]> data_;
  char* pos_;
};

/// Writes a list of labels first..last, sixteen to a line.
inline void WriteLabels(TextBuffer& out, long long first, long long last) {
  out.Text("[");
  for (long long label = first; label <= last; ++label) {
    out.Integer(label);
    if (label != last)
      out.Text((label - first) % 16 == 15 ? ",\n" : ", ");
  }
  out.Text("]");
}

/// The model file's text.
inline TextBuffer ModelText(const ModelShape& shape) {
  const long long n = shape.size;
  const long long nodes = n * n * n;
  const long long cells = n > 1 ? (n - 1) * (n - 1) * (n - 1) : 0;
  // Bounds per value: a label with its separator, a coordinate row, a connectivity row.
  constexpr long long LabelBound = 13, CoordinateRowBound = 3 * 18 + 4, BrickRowBound = 8 * 13 + 4;
  TextBuffer out(static_cast<std::size_t>(nodes * (LabelBound + CoordinateRowBound) +
                                          cells * (LabelBound + BrickRowBound) + 4096));

  out.Text("{\n\"format\": \"keydeck-model\",\n\"version\": 1,\n\"models\": {\n"
           "\"Default Model\": {\n\"parts\": {\n\"Block\": {\n\"nodes\": {\n\"labels\": ");
  WriteLabels(out, 1, nodes);
  out.Text(",\n\"coordinates\": [\n");
  constexpr double Spacing = 0.37;
  constexpr double Origin[3] = {-12.5, 3.25, 100.0};
  for (long long k = 0; k < n; ++k)
    for (long long j = 0; j < n; ++j)
      for (long long i = 0; i < n; ++i) {
        out.Text("[");
        out.Real(static_cast<float>(Origin[0] + static_cast<double>(i) * Spacing));
        out.Text(", ");
        out.Real(static_cast<float>(Origin[1] + static_cast<double>(j) * Spacing));
        out.Text(", ");
        out.Real(static_cast<float>(Origin[2] + static_cast<double>(k) * Spacing));
        out.Text(k == n - 1 && j == n - 1 && i == n - 1 ? "]\n" : "],\n");
      }
  out.Text("]\n},\n\"elements\": [\n{\"type\": \"C3D8R\", \"labels\": ");
  WriteLabels(out, 1, cells);
  out.Text(",\n\"connectivity\": [\n");
  // Node order of a brick: the face at the lower z counter-clockwise seen from
  // above, then the face at the higher z in the same order.
  const long long row = n, layer = n * n;
  long long written = 0;
  for (long long k = 0; k + 1 < n; ++k)
    for (long long j = 0; j + 1 < n; ++j)
      for (long long i = 0; i + 1 < n; ++i) {
        const long long a = 1 + i + j * row + k * layer;
        const long long brick[8] = {a,         a + 1,         a + 1 + row,         a + row,
                                    a + layer, a + 1 + layer, a + 1 + row + layer, a + row + layer};
        out.Text("[");
        for (int c = 0; c < 8; ++c) {
          out.Integer(brick[c]);
          if (c != 7)
            out.Text(", ");
        }
        out.Text(++written == cells ? "]\n" : "],\n");
      }
  out.Text("]}\n]");
  if (shape.withSets) {
    out.Text(",\n\"sets\": {\n\"E10\": {\"elements\": {\"generate\": [1, ");
    out.Integer(cells);
    out.Text(", 10]}},\n\"N10\": {\"nodes\": {\"generate\": [1, ");
    out.Integer(nodes);
    out.Text(", 10]}},\n\"All\": {\"elements\": {\"generate\": [1, ");
    out.Integer(cells);
    out.Text(", 1]}}\n},\n\"sectionAssignments\": [{\"region\": \"All\", \"section\": \"Solid\"}]");
  }
  out.Text("\n}\n},\n\"assembly\": {\"instances\": {\"Block-1\": {\"part\": \"Block\"}}},\n");
  // One solid section on every element: the property classes of a whole mesh.
  if (shape.withSets)
    out.Text(
        "\"materials\": {\"Steel\": {\"density\": {\"table\": [[7.85e-9]]}}},\n"
        "\"sections\": {\"Solid\": {\"type\": \"homogeneousSolid\", \"material\": \"Steel\"}},\n");
  out.Text("\"steps\": [{\"name\": \"Initial\"}, {\"name\": \"Load\", \"procedure\": \"static\"}]\n"
           "}\n}\n}\n");
  return out;
}

/// Writes the model file; returns its size in bytes, or -1 with a message on stderr.
inline long long WriteModelFile(const std::string& path, const ModelShape& shape) {
  const TextBuffer text = ModelText(shape);
  std::FILE* const file = std::fopen(path.c_str(), "wb");
  if (file == nullptr) {
    std::fprintf(stderr, "cannot write %s\n", path.c_str());
    return -1;
  }
  const bool written = std::fwrite(text.Data(), 1, text.Size(), file) == text.Size();
  if (std::fclose(file) != 0 || !written) {
    std::fprintf(stderr, "cannot write %s\n", path.c_str());
    return -1;
  }
  return static_cast<long long>(text.Size());
}

} // namespace keydeck_bench
