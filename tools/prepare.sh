# shellcheck shell=bash
# What ./run, ./test and .ci/run have in common: packages and build. Sourced from the top folder.

# fail WORDS...: says in one line what is wrong and ends.
fail() {
    echo "$*" >&2
    exit 1
}

show_end() {
    tail -n 30 "$1" >&2
    echo "El registro completo: $1" >&2
}

# logged LOG COMMAND...: adds what the command says to the log; its end is shown if the command fails.
logged() {
    local log=$1
    shift
    "$@" >>"$log" 2>&1 && return
    show_end "$log"
    return 1
}

# as_root COMMAND...: fails without a sudo that lets this user through. What it is for, "purpose" tells.
as_root() {
    if [ "$(id -u)" -eq 0 ]; then
        "$@"
    else
        sudo -p "Contraseña de %u, para ${purpose:-instalar lo que falta}: " "$@"
    fi
}

# packages USE...: what packages.txt lists for these uses.
packages() {
    local use
    for use in "$@"; do sed -n "s/^$use //p" packages.txt; done
}

apt_install() {
    as_root env LC_ALL=C DEBIAN_FRONTEND=noninteractive \
        apt-get -o DPkg::Lock::Timeout=300 --no-install-recommends "$1" install "${missing[@]}"
}

# install_packages USE...: installs what is listed for these uses and the machine lacks.
install_packages() {
    local package missing=() log=build/instalar.log
    for package in $(packages "$@"); do
        dpkg-query -W -f='${db:Status-Status}' "$package" 2>/dev/null | grep -qx installed ||
            missing+=("$package")
    done
    [ ${#missing[@]} -gt 0 ] || return 0
    local advice="Faltan paquetes. Instálelos como administrador y con red:"
    advice+=" apt-get update && apt-get install --no-install-recommends ${missing[*]}"
    as_root true 2>/dev/null || fail "$advice"
    mkdir -p build
    echo "Paquetes que faltan: ${#missing[@]}. Buscándolos..."
    as_root apt-get update >"$log" 2>&1 || true # older lists may do
    local sizes
    sizes=$(apt_install --assume-no 2>>"$log" | sed -nE \
        -e 's/^Need to get ([0-9.,]+ [kMG]?B)[ /].*/\1 por descargar,/p' \
        -e 's/^After this operation, ([0-9.,]+ [kMG]?B) of .*/\1 en el disco,/p' | tr '\n' ' ') || true
    echo "Instalando: ${sizes}de 1 a 10 minutos según la red. Registro: $log"
    apt_install --yes >>"$log" 2>&1 && return
    # Without a network there is nothing else to say.
    grep -q 'Failed to fetch\|Unable to locate' "$log" || show_end "$log"
    fail "$advice"
}

# unpack_packages FOLDER: unpacks there, without installing, what packages.txt lists for that.
unpack_packages() {
    local folder=$1 log=build/instalar.log missing=() package
    for package in $(packages unpack); do
        [ -e "$folder/$package.done" ] || missing+=("$package")
    done
    [ ${#missing[@]} -gt 0 ] || return 0
    echo "Desempaquetando: ${missing[*]}"
    rm -rf "$folder/new"
    mkdir -p "$folder/new"
    # As the present user, since apt's own may not reach the folder. Old lists of packages are renewed.
    local download=(env -C "$folder/new" apt-get download -o APT::Sandbox::User= "${missing[@]}")
    "${download[@]}" >>"$log" 2>&1 ||
        { as_root apt-get update >>"$log" 2>&1 && logged "$log" "${download[@]}"; } ||
        fail "No se pueden descargar sin red: ${missing[*]}. Como administrador: apt-get update; repita ./test"
    for package in "${missing[@]}"; do
        dpkg-deb -x "$folder/new/$package"_*.deb "$folder"
        touch "$folder/$package.done"
    done
    rm -r "$folder/new"
}

# built_in FOLDER: where the checkout lay when this folder was configured; empty if it never was.
built_in() {
    sed -n 's/^CMAKE_HOME_DIRECTORY:INTERNAL=//p' "$1/CMakeCache.txt" 2>/dev/null || true
}

# leave_old_place FOLDER: undoes what was built before the checkout was renamed or copied, but for the
# folder of the programs, which holds the user's catalogue.
leave_old_place() {
    local place
    place=$(built_in "$1")
    [ -z "$place" ] || [ "$place" -ef . ] ||
        find "$1" -mindepth 1 -maxdepth 1 ! -name bin -exec rm -rf {} +
}

# The compiler cache lies at the user's home, or in the checkout if that can't be written.
place_cache() {
    local cache
    cache=$(ccache --get-config cache_dir 2>/dev/null) || return 0
    if ! mkdir -p "$cache" 2>/dev/null || [ ! -w "$cache" ]; then
        export CCACHE_DIR=$PWD/build/ccache
    fi
}

# build PRESET [TARGET...]: configures and builds.
build() {
    local preset=$1 log=build/$1.log
    shift
    leave_old_place "build/$preset"
    place_cache
    mkdir -p build
    echo "Compilando: la primera vez, de 2 a 20 minutos según la máquina. Registro: $log"
    : >"$log"
    logged "$log" cmake --preset "$preset" &&
        logged "$log" cmake --build --preset "$preset" ${1:+--target "$@"}
}
