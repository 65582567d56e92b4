#pragma once

class utl_Stream;

/// One card of the deck: an object that copies itself and writes its whole
/// text to the deck stream. Cards are plain values; builders construct them
/// on the stack and file copies of them.
class qkw_Keyword {
public:
  virtual ~qkw_Keyword() = default;
  /// A new heap copy of the most derived card, owned by the caller.
  virtual qkw_Keyword* Copy() const = 0;
  /// Writes the card's text; never changes the card.
  virtual void Write(utl_Stream& s) const = 0;
  /// True when the card's data turned out to hold nothing to write; its
  /// builder then drops the card instead of filing it.
  virtual bool IsEmpty() const { return false; }

protected:
  qkw_Keyword() = default;
  qkw_Keyword(const qkw_Keyword&) = default;
  qkw_Keyword& operator=(const qkw_Keyword&) = default;
};
