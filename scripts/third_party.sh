#!/bin/bash
# third_party.sh [native|win64|win32 ...]   (all three when none is named)
# Makes the third-party set for those platforms and links it as build/third-party. The set lives in
# $QM_CACHE, under a hash of its pins and recipe, so that every clone shares one. Works without root.
set -euo pipefail
root=$(cd "$(dirname "$0")/.." && pwd)
recipe=$root/cmake/third-party
cache=${QM_CACHE:-${XDG_CACHE_HOME:-$HOME/.cache}/qmmodimp3}
hash=$(cat "$recipe/pins.txt" "$recipe/CMakeLists.txt" | sha256sum | cut -c1-16)
set_dir=$cache/third-party/$hash
sources=$cache/sources

# The machine's own Debian mirrors, as deb-src lines in a configuration of our own.
private_apt() {
  local scratch=$1 suite
  mkdir -p "$scratch/lists/partial" "$scratch/cache/archives/partial"
  suite=$(. /etc/os-release && echo "$VERSION_CODENAME")
  apt-get indextargets --no-release-info --format '$(REPO_URI) $(RELEASE) $(COMPONENT)' 'Created-By: Packages' |
    awk -v suite="$suite" -v key=/usr/share/keyrings/debian-archive-keyring.gpg '
      $2 ~ "^" suite "(-updates|-security)?$" && $3 == "main" && !seen[$0]++ {
        print "deb-src [signed-by=" key "] " $1, $2, $3 }' >"$scratch/sources.list"
  [ -s "$scratch/sources.list" ] || { echo "third_party: no Debian mirror in apt's configuration" >&2; return 1; }
  cat >"$scratch/apt.conf" <<CONF
Dir::Etc::sourcelist "$scratch/sources.list";
Dir::Etc::sourceparts "-";
Dir::Etc::preferencesparts "-";
Dir::State::Lists "$scratch/lists";
Dir::Cache "$scratch/cache";
APT::Sandbox::User "";
CONF
  APT_CONFIG=$scratch/apt.conf apt-get -q update >"$scratch/update.log" 2>&1 || { cat "$scratch/update.log" >&2; return 1; }
}

# fetch NAME VERSION SHA256: its original tarball, in $sources once its checksum is right.
fetch() {
  local name=$1 version=$2 sha=$3 revision tarball
  tarball=$(compgen -G "$sources/${name}_$version.orig.tar.*" || true)
  if [ -n "$tarball" ] && echo "$sha  $tarball" | sha256sum --status -c; then return; fi
  [ -f "$scratch/apt.conf" ] || private_apt "$scratch"
  revision=$(APT_CONFIG=$scratch/apt.conf apt-cache showsrc --only-source "$name" |
    awk -v v="$version-" '/^Version: / && index($2, v) == 1 { print $2 }' | sort -V | tail -1)
  [ -n "$revision" ] || { echo "third_party: no mirror has $name $version" >&2; return 1; }
  (cd "$scratch" && APT_CONFIG=$scratch/apt.conf apt-get -q source --only-source --tar-only --download-only \
     "$name=$revision" >"$scratch/$name.log" 2>&1) || { cat "$scratch/$name.log" >&2; return 1; }
  tarball=$(compgen -G "$scratch/${name}_$version.orig.tar.*")
  echo "$sha  $tarball" | sha256sum --quiet -c
  mkdir -p "$sources"
  mv "$tarball" "$sources/"
}

build() {
  local platform=$1 toolchain=() stage=$scratch/$1
  echo "third-party libraries for $platform ..."
  if [ "$platform" != native ]; then toolchain=(-DQM_TOOLCHAIN="$root/cmake/toolchain-$platform.cmake"); fi
  cmake -G Ninja -S "$recipe" -B "$stage/build" -DQM_PLATFORM="$platform" -DQM_SOURCES="$sources" "${toolchain[@]}" \
    -DCMAKE_INSTALL_PREFIX="$stage/install" >"$stage.log" 2>&1 &&
    CMAKE_BUILD_PARALLEL_LEVEL=${QM_JOBS:-2} cmake --build "$stage/build" -j1 >>"$stage.log" 2>&1 ||
    { cat "$stage.log" >&2; return 1; }
  mv "$stage/install" "$set_dir/$platform"
  rm -rf "$stage"
}

platforms=("$@")
[ $# -gt 0 ] || platforms=(native win64 win32)
missing=()
for platform in "${platforms[@]}"; do
  [ -d "$set_dir/$platform" ] || missing+=("$platform")
done
if [ ${#missing[@]} -gt 0 ]; then
  mkdir -p "$set_dir"
  exec 9>"$cache/third-party.lock"
  flock 9
  scratch=$(mktemp -d "$set_dir/making.XXXXXX")
  trap 'rm -rf "$scratch"' EXIT
  while read -r name version sha; do
    case $name in ''|'#'*) continue ;; esac
    fetch "$name" "$version" "$sha"
  done <"$recipe/pins.txt"
  for platform in "${missing[@]}"; do
    [ -d "$set_dir/$platform" ] || build "$platform"
  done
fi
mkdir -p "$root/build"
[ "$(readlink "$root/build/third-party")" = "$set_dir" ] || ln -sfn "$set_dir" "$root/build/third-party"
