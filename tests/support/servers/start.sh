# Becomes a server of the tests, for FTP or, of the kind "portal", the property portal:
#   sh start.sh KIND SERVERS HOST PORT FOLDER USER PASSWORD LITTLE
# on HOST and PORT, with 100 ports behind it for files; SERVERS holds what ./test has unpacked,
# home/ in FOLDER is what visitors see, commands.log beside it the list of their commands. Where
# LITTLE is 1 there is room for 300,000 bytes at the most. What the portal has received lies in
# received/ in FOLDER. With KIND and SERVERS alone it says why that server can't run here, or nothing.
#
# An ordinary user runs all but Pure-FTPd. Whoever is forgotten ends by itself after LIFETIME seconds,
# which are 100 unless the environment says otherwise; 0 is for ever.
set -e
kind=$1 servers=$2/usr
here=$(dirname "$0")
id=$(id -u) group=$(id -g) root=
if [ "$id" = 0 ]; then
    root=1 id=65534 group=65534
fi
name=$(id -nu $id 2>/dev/null || true)

if [ $# = 2 ]; then
    rights=$(sed -n 's/^CapEff:[[:space:]]*/0x/p' /proc/self/status)
    needed=$((0x800004)) # CAP_SYS_NICE and CAP_DAC_READ_SEARCH
    program=$servers/sbin/$kind
    [ "$kind" != pyftpdlib ] || program=/usr/lib/python3/dist-packages/pyftpdlib
    [ "$kind" != portal ] || program=$servers/sbin/haproxy
    if [ "$kind" = pure-ftpd ] && { [ -z $root ] || [ $((rights & needed)) != $needed ]; }; then
        echo "Pure-FTPd runs for root alone, and in a container with all of root's rights"
    elif [ "$kind" = proftpd ] && [ -z "$name" ]; then
        echo "ProFTPD runs for a user with a name alone"
    elif [ ! -e "$program" ]; then
        echo "$program is missing: ./test provides it"
    fi
    exit
fi

host=$3 port=$4 folder=$5 user=$6 password=$7 little=$8
first=$((port + 1)) last=$((port + 100))
home=$folder/home
# The password in Windows-1252, as crypt(3) keeps it.
hash='$6$casa$CnriW34UMT38Vh402F2o65cm0/Q9zFls/spVDqFjYLh9vwGtf4U2Mr66Lxais51boSlfsfAPo/AbB0cylwYty1'
export LC_ALL=C.UTF-8
cd "$folder"
cp "$here"/* . # the server's user may reach neither this folder nor the build's
[ ! -e "$servers/sbin/$kind" ] || cp "$servers/sbin/$kind" .
if [ -e "$kind.conf" ]; then
    sed -e "s|@HOST@|$host|; s|@PORT@|$port|; s|@FIRST@|$first|; s|@LAST@|$last|" \
        -e "s|@USER@|$name|; s|@GROUP@|$(id -ng $id)|; s|@FOLDER@|$folder|" "$kind.conf" >server.conf
fi
case $kind in
pyftpdlib)
    set -- /usr/bin/python3 -I -W ignore pyftpdlib.py "$host" $port $last "$home" commands.log "$user" "$password"
    ;;
proftpd)
    for visitor in "$user" anonymous; do
        echo "$visitor:$hash:$id:$group::$home:/bin/sh"
    done >accounts
    # It would end its session at a bound of the system's.
    [ "$little" = 0 ] || echo "MaxStoreFileSize 200 Kb" >>server.conf
    set -- ./proftpd -n -c "$folder/server.conf"
    ;;
vsftpd)
    case $host in
    *:*) printf 'listen=NO\nlisten_ipv6=YES\nlisten_address6=%s\n' "$host" ;;
    *) printf 'listen=YES\nlisten_address=%s\n' "$host" ;;
    esac >>server.conf
    set -- ./vsftpd "$folder/server.conf"
    ;;
pure-ftpd)
    echo "$user:$hash:$id:$group::$home/./::::::::::::" >accounts
    "$servers/bin/pure-pw" mkdb accounts.pdb -f accounts
    set -- ./pure-ftpd --noanonymous --dontresolve --bind "$host,$port" --passiveportrange \
        "$first:$last" --login "puredb:$folder/accounts.pdb" --pidfile "$folder/pid"
    ;;
portal)
    cp -r "$here/../portal" "$servers"/sbin/haproxy "$servers"/sbin/nginx "$servers"/sbin/php-fpm8.2 .
    mkdir -p tmp received/inmuebles received/albumes received/fotos
    printf '%s\n' "$user" "$password" >account
    for conf in haproxy.cfg php-fpm.conf; do
        sed "s|@HOST@|$host|; s|@PORT@|$port|; s|@FOLDER@|$folder|" "portal/$conf" >$conf
    done
    # PHP makes a process group of its own, and ends with its parent instead.
    set -- sh -c 'setpriv --pdeathsig TERM ./php-fpm8.2 -n -p . -y php-fpm.conf & behind=$!
        ./nginx -p "$PWD/" -c portal/nginx.conf & behind="$behind $!"
        until [ -S php.sock ] && [ -S nginx.sock ]; do sleep 0.05; done
        ./haproxy -f haproxy.cfg || true
        kill $behind'
    ;;
esac
chmod -f 600 accounts server.conf || true
if [ -n "$root" ]; then
    chown -R $id:$group .
    [ "$kind" = pure-ftpd ] || set -- setpriv --reuid $id --regid $group --clear-groups "$@"
fi
# A small disk where one can be mounted, or else a bound on files.
disk='mount -t tmpfs -o size=64k,mode=777 none home'
if [ "$little" = 1 ] && unshare -m sh -c "$disk" 2>/dev/null; then
    set -- unshare -m sh -c "$disk"' && exec "$@"' sh "$@"
elif [ "$little" = 1 ]; then
    trap '' XFSZ
    set -- prlimit --fsize=300000 "$@"
fi
exec setpriv --pdeathsig TERM timeout "${LIFETIME:-100}" "$@"
