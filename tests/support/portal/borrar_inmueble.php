<?php
// Deletes one home with its pictures; one that is unknown is deleted already.
require 'portal.php';

needSession();
$number = deletedNumber();
forget('inmuebles', $number);
forget('albumes', $number);
answer(200, 'Borrado.');
