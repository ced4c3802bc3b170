<?php
// The log-in. A good one is answered with a cookie and a page that holds the agent's number and a
// comment for each home that need not be sent again.
require 'portal.php';

[$email, $password] = file(__DIR__ . '/../account', FILE_IGNORE_NEW_LINES);
if (($_POST['email'] ?? '') !== $email || ($_POST['password'] ?? '') !== $password) {
    answer(200, 'El correo o la contraseña no es correcto.');
}
session_start();
$_SESSION['agent'] = AGENT;
session_write_close();
$comments = '<!--AgentId=' . AGENT . "-->\n";
foreach (wholeHomes() as $number) {
    $comments .= "<!--ProductId=$number-->\n";
}
answer(200, 'Bienvenida.', $comments);
