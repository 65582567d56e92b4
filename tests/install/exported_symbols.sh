#!/bin/sh
# Fails when libkeydeck.so exports more than its public interface: every
# dynamic symbol that it defines must belong to keydeck::Model,
# keydeck::Error or keydeck::Version. A new public name goes into `public`.
#   exported_symbols.sh LIBRARY
set -eu
public='keydeck::(Model|Error|Version)'
symbols=$(nm -D --defined-only --demangle "$1" | cut -d' ' -f3-)
if ! printf '%s\n' "$symbols" | grep -q '^keydeck::Model::Open('; then
  echo "$1 does not export keydeck::Model::Open" >&2
  exit 1
fi
unexpected=$(printf '%s\n' "$symbols" |
  grep -Ev "^(${public}[:(]|(vtable|typeinfo|typeinfo name) for ${public}\$)" || true)
if [ -n "$unexpected" ]; then
  printf '%s exports symbols outside the public interface:\n%s\n' "$1" "$unexpected" >&2
  exit 1
fi
echo "$(printf '%s\n' "$symbols" | wc -l) exported symbols, all public"
