<?php
// All pictures of one home, which take the place of those that it had. May come before its form.
require 'portal.php';

needSession();
$number = homeNumber($_POST['ProductId'] ?? null);
if (($_POST['AgentId'] ?? '') !== AGENT) {
    answer(403, 'No es de este agente.');
}
if (count(keptPictures()) < count($_FILES)) {
    answer(400, 'Falta una foto.');
}
store('albumes', $number, keptPictures());
answer(200, 'Guardadas.');
