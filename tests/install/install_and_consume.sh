#!/bin/sh
# Installs keydeck into a temporary prefix, then builds examples/cpp against
# it twice, through find_package(keydeck) and through pkg-config, runs both
# and checks that each writes the same deck as the installed command.
#   install_and_consume.sh BUILD_DIR SOURCE_DIR VERSION LIBDIR [CXXFLAGS]
# CXXFLAGS reach the example's compiler and linker (a sanitizer build's
# library needs its runtime in the program too).
set -eu
build=$1 source=$2 version=$3 libdir=$4 flags=${5:-}
work=$(mktemp -d "${TMPDIR:-/tmp}/keydeck-install.XXXXXX")
trap 'rm -rf "$work"' EXIT
prefix=$work/prefix
model=$source/examples/bracket.json

fail() {
  echo "install_and_consume: $*" >&2
  exit 1
}

cmake --install "$build" --prefix "$prefix" >"$work/install.log" || fail "cmake --install failed"
for file in bin/keydeck "$libdir/libkeydeck.so.$version" "$libdir/libkeydeck.so.0" \
  "$libdir/libkeydeck.so" include/keydeck/keydeck.h "$libdir/cmake/keydeck/keydeckConfig.cmake" \
  "$libdir/cmake/keydeck/keydeckConfigVersion.cmake" "$libdir/pkgconfig/keydeck.pc" \
  share/doc/keydeck/library.md; do
  [ -e "$prefix/$file" ] || fail "the prefix has no $file"
done
[ "$(readlink "$prefix/$libdir/libkeydeck.so.0")" = "libkeydeck.so.$version" ] ||
  fail "libkeydeck.so.0 does not point to libkeydeck.so.$version"
# The headers stand on their own: nothing from the source tree is needed.
if grep -rhE '#include "(base|model|qkw|oif|cli)/' "$prefix/include/keydeck"; then
  fail "an installed header includes an internal one"
fi

mkdir "$work/reference" "$work/cmake" "$work/pkg-config"
"$prefix/bin/keydeck" write "$model" -o "$work/reference" -q

# Runs one build of the example and compares its deck with the command's.
check_example() { # program folder
  "$1" "$model" "$2" >"$work/out.txt" || fail "$1 failed"
  [ "$(cat "$work/out.txt")" = "keydeck $version wrote $2/bracket.inp" ] ||
    fail "$1 printed \"$(cat "$work/out.txt")\""
  cmp "$work/reference/bracket.inp" "$2/bracket.inp" || fail "$1 wrote another deck"
}

cmake -S "$source/examples/cpp" -B "$work/example" -DCMAKE_PREFIX_PATH="$prefix" \
  -DCMAKE_CXX_FLAGS="$flags" >"$work/configure.log" || fail "find_package(keydeck) failed"
cmake --build "$work/example" >"$work/build.log" || fail "the example does not build"
check_example "$work/example/write_deck" "$work/cmake"

command -v pkg-config >/dev/null || fail "pkg-config is not installed"
export PKG_CONFIG_PATH="$prefix/$libdir/pkgconfig"
[ "$(pkg-config --modversion keydeck)" = "$version" ] || fail "keydeck.pc has another version"
# shellcheck disable=SC2046,SC2086
c++ -std=c++17 $flags "$source/examples/cpp/write_deck.cpp" -o "$work/write_deck" \
  $(pkg-config --cflags --libs keydeck) -Wl,-rpath,"$prefix/$libdir" ||
  fail "the example does not build with pkg-config"
check_example "$work/write_deck" "$work/pkg-config"
echo "installed, built and ran the example in $prefix"
