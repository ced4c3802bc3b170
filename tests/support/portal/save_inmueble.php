<?php
// The form of one home; another with the same number takes its place.
require 'portal.php';

needSession();
$number = homeNumber($_POST['ProductId'] ?? null);
if (($_POST['AgentId'] ?? '') !== AGENT) {
    answer(403, 'No es de este agente.');
}
store('inmuebles', $number, $_POST);
answer(200, 'Guardado.');
