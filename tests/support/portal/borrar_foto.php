<?php
// Deletes one picture. Its number is the home's followed by two digits: how many pictures the home had
// got when this one was added, which is its place in the upload as long as nobody has sorted them.
require 'portal.php';

needSession();
$number = (int)deletedNumber();
$home = (string)intdiv($number, 100);
$album = stored('albumes', $home);
if ($album) {
    unset($album['image' . ($number % 100 - 1)]);
    store('albumes', $home, $album);
}
answer(200, 'Borrada.');
