<?php
// What the portal's addresses share: where it keeps things, who is logged in, and its log.
//
// Below received/, beside the scripts' folder:
//   inmuebles/ID   the form of a home, serialized as PHP understood it
//   albumes/ID     its pictures: field name => file, serialized, in the order in which they came
//   fotos/         the pictures by their hash; one that is replaced stays, since the log names it
//   log            a line for each request: status, method, address, fields
declare(strict_types=1);

const AGENT = '1234';
const RECEIVED = __DIR__ . '/../received';

// The fields of this request as a query string of percent-encoded names and values, in the order in
// which PHP gives them: pictures first, as "@" and the name of the file that holds each.
function understood(): string
{
    $parts = [];
    foreach (keptPictures() as $name => $file) {
        $parts[] = rawurlencode((string)$name) . '=@' . $file;
    }
    foreach ($_GET + $_POST as $name => $value) {
        $text = is_array($value) ? 'Array' : $value;
        $parts[] = rawurlencode((string)$name) . '=' . rawurlencode($text);
    }
    return implode('&', $parts);
}

// Keeps the pictures of this request and gives their files by field name. A picture that didn't come
// whole is left out.
function keptPictures(): array
{
    static $kept = null;
    if ($kept === null) {
        $kept = [];
        foreach ($_FILES as $name => $file) {
            if ($file['error'] !== UPLOAD_ERR_OK) {
                continue;
            }
            $kept[$name] = sha1_file($file['tmp_name']) . '.jpg';
            move_uploaded_file($file['tmp_name'], RECEIVED . '/fotos/' . $kept[$name]);
        }
    }
    return $kept;
}

// Ends the request: logs it and answers with a small page.
function answer(int $status, string $text, string $comments = ''): never
{
    $line = "$status {$_SERVER['REQUEST_METHOD']} " . basename($_SERVER['SCRIPT_NAME']);
    file_put_contents(RECEIVED . '/log', $line . ' ' . understood() . "\n", FILE_APPEND | LOCK_EX);
    http_response_code($status);
    header('Content-Type: text/html; charset=utf-8');
    echo "<!DOCTYPE html>\n<title>Portal de prueba</title>\n<p>$text</p>\n$comments";
    exit;
}

// Ends the request unless it brings the cookie of a log-in. The program sends the cookie with all its
// attributes, and in deletions with a "User-Agent:" glued to its end. Both leave the session's name
// and value whole, since "; path=/" stands between.
function needSession(): void
{
    session_start(['read_and_close' => true, 'use_strict_mode' => true]);
    if (($_SESSION['agent'] ?? '') !== AGENT) {
        answer(403, 'Hay que entrar primero.');
    }
}

// The number of a home, or the end of the request: it becomes the name of a file.
function homeNumber(mixed $text): string
{
    if (!is_string($text) || !preg_match('/^\d{1,18}$/D', $text)) {
        answer(400, 'No es un número de inmueble.');
    }
    return $text;
}

// The number that a deletion names behind the agent's.
function deletedNumber(): string
{
    $parts = explode('-', (string)($_GET['id'] ?? ''), 2);
    if ($parts[0] !== AGENT) {
        answer(403, 'No es de este agente.');
    }
    return homeNumber($parts[1] ?? null);
}

function store(string $kind, string $number, array $values): void
{
    file_put_contents(RECEIVED . "/$kind/$number", serialize($values), LOCK_EX);
}

// What is stored there; empty if nothing is.
function stored(string $kind, string $number): array
{
    $file = RECEIVED . "/$kind/$number";
    return is_file($file) ? unserialize(file_get_contents($file), ['allowed_classes' => false]) : [];
}

function forget(string $kind, string $number): void
{
    $file = RECEIVED . "/$kind/$number";
    if (is_file($file)) {
        unlink($file);
    }
}

// Numbers of all homes with both, form and album: the program sends no home anew that the log-in page
// lists, so one whose pictures got lost must not be listed. Their order of arrival doesn't count.
function wholeHomes(): array
{
    $numbers = array_map('basename', glob(RECEIVED . '/inmuebles/*'));
    return array_filter($numbers, fn($number) => is_file(RECEIVED . "/albumes/$number"));
}
