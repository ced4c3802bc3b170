# What ./run and ./test have in common: packages and build. Sourced from the top folder.

as_root=()
[ "$(id -u)" -eq 0 ] || as_root=(sudo)

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
    echo "Instalando: ${missing[*]}"
    "${as_root[@]}" apt-get update -qq
    "${as_root[@]}" env DEBIAN_FRONTEND=noninteractive apt-get install -y -qq "${missing[@]}"
}

# unpack_packages FOLDER: unpacks there, without installing, what packages.txt lists for that.
unpack_packages() {
    local folder=$1 missing=() package
    for package in $(sed -n 's/^unpack //p' packages.txt); do
        [ -e "$folder/$package.done" ] || missing+=("$package")
    done
    [ ${#missing[@]} -eq 0 ] && return 0
    echo "Desempaquetando: ${missing[*]}"
    rm -rf "$folder/new"
    mkdir -p "$folder/new"
    # As the present user, since apt's own may not reach the folder. Old lists of packages are renewed.
    local download=(env -C "$folder/new" apt-get download -qq -o APT::Sandbox::User= "${missing[@]}")
    "${download[@]}" 2>/dev/null || { "${as_root[@]}" apt-get update -qq && "${download[@]}"; }
    for package in "${missing[@]}"; do
        dpkg-deb -x "$folder/new/$package"_*.deb "$folder"
        touch "$folder/$package.done"
    done
    rm -r "$folder/new"
}

# build PRESET [TARGET...]: configures once and builds.
build() {
    local preset=$1
    shift
    [ -f "build/$preset/build.ninja" ] || cmake --preset "$preset"
    cmake --build --preset "$preset" ${1:+--target "$@"}
}
