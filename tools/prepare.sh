# What ./run and ./test have in common: packages and build. Sourced from the top folder.

# install_packages USE...: installs what packages.txt lists for these uses and the machine lacks.
install_packages() {
    local use missing=()
    for use in "$@"; do
        local package
        for package in $(sed -n "s/^$use //p" packages.txt); do
            dpkg-query -W -f='${db:Status-Status}' "$package" 2>/dev/null | grep -qx installed ||
                missing+=("$package")
        done
    done
    [ ${#missing[@]} -eq 0 ] && return 0
    local as_root=()
    [ "$(id -u)" -eq 0 ] || as_root=(sudo)
    echo "Instalando: ${missing[*]}"
    "${as_root[@]}" apt-get update -qq
    "${as_root[@]}" env DEBIAN_FRONTEND=noninteractive apt-get install -y -qq "${missing[@]}"
}

# build PRESET [TARGET...]: configures once and builds.
build() {
    local preset=$1
    shift
    [ -f "build/$preset/build.ninja" ] || cmake --preset "$preset"
    cmake --build --preset "$preset" ${1:+--target "$@"}
}
