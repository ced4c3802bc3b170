<?php
// What the portal has received, for people.
require 'portal.php';

header('Content-Type: text/html; charset=windows-1252'); // as the texts are
header('Cache-Control: no-store');

const TYPES = [0 => 'Obra nueva', 1 => 'Venta', 2 => 'Casa', 3 => 'Terreno', 4 => 'Alquiler',
    8 => 'Finca rústica', 9 => 'Local', 10 => 'Garaje'];
const FACTS = ['Superficie' => ' m²', 'HabInd' => ' hab. individuales', 'HabDob' => ' hab. dobles',
    'Banos' => ' baños', 'Aseos' => ' aseos'];
const LAST_REQUESTS = 20;

// A text of the program, which is in Windows-1252, for this page.
function shown(string $text): string
{
    return htmlspecialchars($text, ENT_QUOTES | ENT_SUBSTITUTE, 'cp1252');
}

// A text of this file, which is in UTF-8. All its letters are below 256.
function own(string $text): string
{
    return preg_replace_callback('/[\xC2\xC3]([\x80-\xBF])/',
        fn($found) => '&#' . ((ord($found[0]) & 3) << 6 | ord($found[1]) & 63) . ';', $text);
}

function price(string $amount): string
{
    return is_numeric($amount) ? number_format((float)$amount, 0, ',', '.') . ' &euro;' : shown($amount);
}

function printHome(string $number): void
{
    $home = stored('inmuebles', $number);
    $field = fn($name) => is_string($home[$name] ?? null) ? trim($home[$name]) : '';
    echo '<article><div class="fotos">';
    foreach (stored('albumes', $number) as $file) {
        echo '<a href="/fotos/' . $file . '"><img src="/fotos/' . $file . '" alt=""></a>';
    }
    echo '</div><div class="texto"><p class="clase">', own(TYPES[(int)$field('TipoInmueble')] ?? '');
    echo ' &middot; ', shown($field('SaleZoneUsr')), '</p>';
    echo '<h2>', shown($field('ShortDesc')), '</h2>';
    echo '<p class="precio">', price($field('PriceAmount')), ' <small>';
    echo shown($field('PriceInPta')), '</small></p><ul>';
    foreach (FACTS as $name => $unit) {
        if (!in_array($field($name), ['', '0'])) {
            echo '<li>', shown($field($name)), own($unit), '</li>';
        }
    }
    echo '</ul><p>', nl2br(shown($field('LongDesc'))), '</p>';
    echo '<p class="ref">Ref. ', shown($field('ProductRef')), ' &middot; n.&ordm; ', $number;
    if (!in_array($number, wholeHomes())) {
        echo ' &middot; <strong>sin sus fotos</strong>';
    }
    echo '</p></div></article>';
}

$homes = array_map('basename', glob(RECEIVED . '/inmuebles/*'));
$log = is_file(RECEIVED . '/log') ? file(RECEIVED . '/log', FILE_IGNORE_NEW_LINES) : [];
?>
<!DOCTYPE html>
<html lang="es">
<meta name="viewport" content="width=device-width">
<title>Portal de prueba</title>
<style>
body { font: 16px/1.5 system-ui, sans-serif; margin: 0; background: #f4f1ec; color: #2b2a28 }
header { background: #23505c; color: #fff; padding: 1rem 2rem }
header h1 { margin: 0; font-size: 1.4rem }
header p { margin: 0; opacity: .85 }
main { max-width: 1100px; margin: 1.5rem auto; padding: 0 1rem }
article { display: flex; flex-wrap: wrap; background: #fff; border-radius: 8px; overflow: hidden;
    margin-bottom: 1.5rem; box-shadow: 0 1px 4px #0003 }
.fotos { flex: 1 1 20rem; display: grid; grid-template-columns: repeat(3, 1fr); gap: 3px; align-content: start }
.fotos a:first-child { grid-column: 1 / -1 }
.fotos img { width: 100%; height: 100%; aspect-ratio: 4/3; object-fit: cover; display: block }
.texto { flex: 2 1 24rem; padding: 1rem 1.5rem; overflow-wrap: anywhere }
.texto h2 { margin: 0; font-size: 1.25rem }
.clase { margin: 0; color: #23505c; font-size: .85rem; text-transform: uppercase }
.precio { margin: .2rem 0; font-size: 1.2rem; font-weight: 600 }
.precio small, .ref { color: #6d6a65; font-weight: 400; font-size: .85rem }
.texto ul { padding: 0; display: flex; flex-wrap: wrap; gap: .5rem; list-style: none }
.texto li { background: #eef3f4; border-radius: 4px; padding: 0 .6rem }
table { border-collapse: collapse; width: 100%; font-size: .85rem; background: #fff }
td { border-top: 1px solid #e3ded6; padding: .3rem .6rem; overflow-wrap: anywhere; vertical-align: top }
</style>
<header>
<h1>Portal de prueba</h1>
<p><?= count($homes), ' inmuebles, ', count($log), own(' peticiones. Vuelva a cargar la página para ver lo último.') ?></p>
</header>
<main>
<?php
foreach ($homes as $number) {
    printHome($number);
}
if (!$homes) {
    echo own('<p>Todavía no ha llegado ningún inmueble.</p>');
}
?>
<h2><?= own('Últimas peticiones') ?></h2>
<table>
<?php
foreach (array_reverse(array_slice($log, -LAST_REQUESTS)) as $line) {
    [$status, $method, $address, $fields] = explode(' ', $line, 4) + ['', '', '', ''];
    $text = shown(substr(rawurldecode(str_replace('&', ' ', $fields)), 0, 300));
    echo "<tr><td>$status<td>$method&nbsp;$address<td>$text";
}
?>
</table>
</main>
