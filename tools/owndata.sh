# shellcheck shell=bash
# What the program that ./run starts owns in its checkout, settings and catalogue, and the screen that it
# gets. Sourced from the top folder, whose real path PWD must hold.

programs=build/release/bin/

# stored_checkout SETTINGS: the folder, with trailing "/", of the checkout whose program wrote them;
# empty if it was another program.
stored_checkout() {
    sed -n "s|^AppPath=\(/.*/\)$programs\$|\1|p" "$1" 2>/dev/null || true
}

# move_settings SETTINGS OLD NEW: values that are paths below the folder OLD lie below NEW from now on.
move_settings() {
    local line value
    (umask 077 && while IFS= read -r line || [ -n "$line" ]; do
        value=${line#*=}
        [ "${value#"$2"}" = "$value" ] || line=${line%%=*}=$3${value#"$2"}
        printf '%s\n' "$line"
    done <"$1" >"$1.new")
    mv "$1.new" "$1"
}

# Each checkout has settings of its own, or it would publish into the site of another. Those that the
# user's home holds for this one are taken over at the first start. A checkout that was renamed or
# copied takes its paths along. To be called before the build forgets where the checkout lay.
keep_settings() {
    local users=${XDG_CONFIG_HOME:-${HOME:-}/.config} file old built
    export XDG_CONFIG_HOME=$PWD/build/settings
    # What the desktop's programs have stored is still found.
    export XDG_CONFIG_DIRS=$users:${XDG_CONFIG_DIRS:-/etc/xdg}
    if [ ! -e "$XDG_CONFIG_HOME" ]; then
        built=$(built_in build/release)
        for file in "$users"/*/settings.ini; do
            old=$(stored_checkout "$file")
            if [ -n "$old" ] && { [ "$old" = "$PWD/" ] || [ "$old" = "$built/" ]; }; then
                (umask 077 && mkdir -p "$XDG_CONFIG_HOME" && cp -r "${file%/*}" "$XDG_CONFIG_HOME")
            fi
        done
    fi
    for file in "$XDG_CONFIG_HOME"/*/settings.ini; do
        old=$(stored_checkout "$file")
        [ -z "$old" ] || [ "$old" = "$PWD/" ] || move_settings "$file" "$old" "$PWD/"
    done
}

# The sample takes the place of an empty catalogue only: whatever a user has typed stays.
lay_out_sample() {
    local data=${programs}Data settings=$XDG_CONFIG_HOME/Lumenta/settings.ini
    if cmp -s "$data/Zandora.zdb" "$data/catalogos/generico/Zandora.zdb"; then
        cp "$data"/catalogos/muestra/* "$data/"
    fi
    # A first start shows the sample in both of its languages.
    if [ ! -e "$settings" ]; then
        (umask 077 && mkdir -p "${settings%/*}" && printf '[Params]\nUserLangs=ES|EN\n' >"$settings")
    fi
}

# The web engine would tell the terminal all about itself.
quiet_web_engine() {
    export QT_LOGGING_RULES=${QT_LOGGING_RULES:-default.info=false;qt.webenginecontext=false}
    export QTWEBENGINE_CHROMIUM_FLAGS=${QTWEBENGINE_CHROMIUM_FLAGS:---log-level=3}
}

# screen_platform: what the toolkit calls the screen that can be used, empty if that is what it takes by
# itself; fails if there is none.
screen_platform() {
    local platform
    [ -n "${DISPLAY:-}${WAYLAND_DISPLAY:-}" ] || return 1
    for platform in "${QT_QPA_PLATFORM:-}" xcb wayland; do
        if QT_QPA_PLATFORM=$platform timeout 20 "${programs}hasscreen" >/dev/null 2>&1; then
            echo "$platform"
            return
        fi
    done
    return 1
}
