# Shared by bench/run and bench/kinship: the programs and the generated files. Source it; it sets `programs`
# and `cache`.

bench=$(cd "$(dirname "${BASH_SOURCE[0]}")" && pwd)
root=$(dirname "$bench")

# prepare_programs TARGET...: builds the release preset, unless BIN_DIR names programs that are already built.
prepare_programs() {
    if [[ -n ${BIN_DIR:-} ]]; then
        programs=$(cd "$BIN_DIR" && pwd)
        return
    fi
    cd "$root"
    . packaging/build.sh
    install_packages "${BUILD_PACKAGES[@]}" python3
    build release "$@"
    programs=$root/build/release/bin
}

# prepare_cache: the folder of the generated files. Files of another version of the generator are of no more
# use.
prepare_cache() {
    local all=${XDG_CACHE_HOME:-$HOME/.cache}/swiftroll-bench version
    version=$(cd "$bench" && cat generate.cpp generator/*.h generator/*.cpp | sha256sum | cut -c 1-16)
    cache=$all/$version
    mkdir -p "$cache"
    find "$all" -mindepth 1 -maxdepth 1 -type d ! -name "$version" -exec rm -rf {} +
}

# generated NAME ARGUMENT...: makes the file NAME in the cache with these arguments, once; prints its path.
generated() {
    local file=$cache/$1
    shift
    if [[ ! -f $file ]]; then
        "$programs/generate" "$@" >"$file.part"
        mv "$file.part" "$file"
    fi
    printf '%s\n' "$file"
}

# in_utf8 FILE: makes the same file in UTF-8 beside it, once; prints its path.
in_utf8() {
    local file=${1%.ged}.utf8.ged
    if [[ ! -f $file ]]; then
        iconv -f WINDOWS-1252 -t UTF-8 "$1" | sed '1,20s/^1 CHAR ANSI/1 CHAR UTF-8/' >"$file.part"
        mv "$file.part" "$file"
    fi
    printf '%s\n' "$file"
}
