<!-- Web Generada con Lumenta--> 



never in a preview