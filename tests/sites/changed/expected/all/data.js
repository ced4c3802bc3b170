<!-- Web Generada con Lumenta--> 



['3','1','2' ] ['2','0','1' ]