<!-- Web Generada con Lumenta--> 



[] [] [] [%%LIST0%%] [%%LISTSHORTDESC%%]